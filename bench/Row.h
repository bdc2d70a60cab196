#pragma once

// What the benchmarks print on their standard output: lines of fields with tabs between them, which
// bench/table.awk turns into tables.

#include <cstdio>
#include <optional>
#include <string>

namespace tembra::bench {

// What stands beside ours, measured in the same run: another program, or the least that the work can cost.
struct Peer {
    std::string name;
    double value = 0;
};

struct Goal {
    double most = 0;
    // Of the peer's; else in the row's unit.
    bool isShare = false;
};

inline Goal atMost(double value) {
    return {.most = value};
}

inline Goal atMostTimes(double share) {
    return {.most = share, .isShare = true};
}

// One figure. Without a peer, a goal that is a share of it is not judged.
struct Row {
    std::string what;
    double ours = 0;
    std::string unit;
    std::optional<Peer> peer = {};
    std::optional<Goal> goal = {};
};

inline const char *verdict(const Row &row) {
    if (!row.goal)
        return "";
    if (row.goal->isShare && !row.peer)
        return "not measured";
    const double most = row.goal->most * (row.goal->isShare ? row.peer->value : 1);
    return row.ours <= most ? "pass" : "FALLS SHORT";
}

// "row", what, ours, unit, the peer's name, the peer's, ratio, goal, verdict; empty is what there is not.
inline void printRow(const Row &row) {
    std::printf("row\t%s\t%.6g\t%s\t", row.what.c_str(), row.ours, row.unit.c_str());
    if (row.peer)
        std::printf("%s\t%.6g", row.peer->name.c_str(), row.peer->value);
    else
        std::printf("\t");
    if (row.peer && row.peer->value > 0)
        std::printf("\t%.6g\t", row.ours / row.peer->value);
    else
        std::printf("\t\t");
    if (row.goal)
        std::printf("≤ %.3g", row.goal->most);
    if (row.goal && (row.goal->isShare || !row.unit.empty()))
        std::printf(" %s", row.goal->isShare ? "×" : row.unit.c_str());
    std::printf("\t%s\n", verdict(row));
    std::fflush(stdout);
}

// What the rows that follow are about.
inline void printArea(const char *name) {
    std::printf("area\t%s\n", name);
}

// What whoever reads the figures has to know, such as what is missing on this machine.
inline void printNote(const std::string &text) {
    std::printf("note\t%s\n", text.c_str());
}

// A place in the table of what grows with `by`: "captures" or "megapixels".
inline void printGrowth(const char *by, int size, const std::string &what, const char *unit, double value) {
    std::printf("growth\t%s\t%d\t%s\t%s\t%.6g\n", by, size, what.c_str(), unit, value);
    std::fflush(stdout);
}

} // namespace tembra::bench
