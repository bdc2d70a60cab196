#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace tembra::bench {

inline double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

// Milliseconds that the work takes.
template <class Work>
double milliseconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// One figure beside the one that it is held against, and the ratio that is wished for.
inline void printRow(const char *what, double ours, double floor, const char *unit, double goal) {
    std::printf("%-52s %9.2f %9.2f %-4s %6.2f  <= %.2f  %s\n", what, ours, floor, unit, ours / floor, goal,
                ours <= goal * floor ? "pass" : "FALLS SHORT");
}

} // namespace tembra::bench
