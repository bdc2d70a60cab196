#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace tembra::bench {

using Clock = std::chrono::steady_clock;

inline double millisecondsBetween(Clock::time_point from, Clock::time_point to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

inline double millisecondsSince(Clock::time_point start) {
    return millisecondsBetween(start, Clock::now());
}

// Milliseconds that the work takes.
template <class Work>
double milliseconds(Work work) {
    const auto start = Clock::now();
    work();
    return millisecondsSince(start);
}

// The value that this share of them does not exceed; of at least one.
inline double quantile(std::vector<double> values, double share) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
}

inline double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

inline double longest(const std::vector<double> &values) {
    return *std::ranges::max_element(values);
}

template <class Work>
double medianMilliseconds(int rounds, const Work &work) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(milliseconds(work));
    return median(times);
}

struct Medians {
    double ours = 0;
    double theirs = 0;
};

// Median milliseconds of two works that take turns, so that what else the machine does falls on both.
template <class Ours, class Theirs>
Medians takingTurns(int rounds, const Ours &ours, const Theirs &theirs) {
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (int round = 0; round < rounds; ++round) {
        ourTimes.push_back(milliseconds(ours));
        theirTimes.push_back(milliseconds(theirs));
    }
    return {median(ourTimes), median(theirTimes)};
}

} // namespace tembra::bench
