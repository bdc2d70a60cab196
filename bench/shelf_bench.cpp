// How the running shelf moves over 10,000 captures: the time from the pointer's entering the notch to the
// first frame, and the program's own work for each frame of opening, closing and scrolling, beside a bare
// window in the same run; and how that grows with the captures. Needs a display; run through bench/run, with
// and without a compositor.

#include "FrameWatch.h"
#include "Require.h"
#include "Row.h"
#include "ShelfMeasurement.h"
#include "Timing.h"
#include "UserHome.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sstream>

using namespace tembra::bench;

namespace {

constexpr int usualCount = 10'000;
// The memory of 10,000 is held against that of these.
constexpr int fewCount = 100;

// One line each: a name and its samples.
void print(const Figures &figures) {
    for (const auto &[name, samples] : figures) {
        std::cout << name;
        for (const double sample : samples)
            std::cout << ' ' << sample;
        std::cout << '\n';
    }
}

// A process of its own for each number of captures, because of the memory.
int measure(int argc, char **argv, int count, bool onlyFirstTiles) {
    const UserHome home(count);
    FrameWatch watch(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ShelfMeasurement measurement(watch);
    measurement.firstTiles();
    if (!onlyFirstTiles) {
        measurement.openings(count == usualCount ? 21 : 9);
        measurement.openingsAfterChanges(7, QDir(home.captures()));
        measurement.scrolling();
    }
    if (!onlyFirstTiles && count == usualCount)
        measurement.bareOpenings(21);
    // More than the usual number would take minutes to scroll through.
    if (!onlyFirstTiles && (count == usualCount || count == fewCount))
        measurement.memoryAfterAll();
    print(measurement.figures());
    return EXIT_SUCCESS;
}

void run(const std::string &program, int count, const char *option, Figures &figures) {
    std::FILE *output = popen((program + ' ' + std::to_string(count) + ' ' + option).c_str(), "r");
    std::string text;
    for (int character = std::fgetc(output); character != EOF; character = std::fgetc(output))
        text += static_cast<char>(character);
    require(pclose(output) == 0, "a measurement did not end well");
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name;
        words >> name;
        for (double sample = 0; words >> sample;)
            figures[name].push_back(sample);
    }
}

// Of a hundred samples the 95th: single ones are another program's turn on a shared machine.
double spread(const Figures &figures, const std::string &name) {
    return quantile(figures.at(name), 0.95);
}

void printMotion(const Figures &figures) {
    printRow({.what = "pointer in the notch to the first frame, 95th of 100",
              .ours = spread(figures, "notch"),
              .unit = "ms",
              .peer = Peer{"a bare window", spread(figures, "bare-notch")},
              .goal = atMost(16)});
    printRow({.what = "the same after a capture went, longest",
              .ours = longest(figures.at("changed-notch")),
              .unit = "ms",
              .peer = Peer{"a bare window", longest(figures.at("bare-notch"))},
              .goal = atMost(16)});
    for (const std::string name : {"opening", "closing", "scrolling"}) {
        printRow({.what = name + ", work a frame, 95th of 100",
                  .ours = spread(figures, name),
                  .unit = "ms",
                  .peer = Peer{"filling a bare window", spread(figures, "bare-frame")},
                  .goal = atMost(8)});
        printRow({.what = name + ", longest frame, processor time",
                  .ours = longest(figures.at(name + "-processor")),
                  .unit = "ms",
                  .peer = Peer{"filling a bare window", longest(figures.at("bare-frame-processor"))},
                  .goal = atMost(8)});
    }
}

void printStart(const Figures &figures) {
    printRow({.what = "end of the first scan to the first tiles",
              .ours = median(figures.at("tiles")),
              .unit = "ms",
              .goal = atMost(100)});
    printRow({.what = "end of the first scan to their pictures",
              .ours = median(figures.at("pictures")),
              .unit = "ms",
              .goal = atMost(100)});
}

void printMemory(const Figures &many, const Figures &few) {
    // A program that runs beside only one of the two takes a part of the proportional memory off it; the
    // resident one counts what is shared in full.
    for (const std::string kind : {"proportional", "resident"})
        printRow({.what = kind + " memory, 10,000 scrolled through",
                  .ours = median(many.at(kind + "-memory")),
                  .unit = "MiB",
                  .peer = Peer{"100 of them", median(few.at(kind + "-memory"))},
                  .goal = atMostTimes(1.5)});
}

void printShelfGrowth(int count, const Figures &figures) {
    printGrowth("captures", count, "first scan to the first tiles", "ms", median(figures.at("tiles")));
    printGrowth("captures", count, "opening to its first frame", "ms", median(figures.at("notch")));
    printGrowth("captures", count, "the same after a change", "ms", median(figures.at("changed-notch")));
    // So few do not scroll.
    if (const auto scrolling = figures.find("scrolling"); scrolling != figures.end())
        printGrowth("captures", count, "scrolling, work a frame", "ms", median(scrolling->second));
}

} // namespace

int main(int argc, char **argv) {
    if (argc > 1)
        return measure(argc, argv, QByteArray(argv[1]).toInt(), argc > 2);
    const bool isComposited = qEnvironmentVariable("COMPOSITOR") != u"none";
    printArea(isComposited ? "The shelf in motion, 10,000 captures, 1920 × 1080"
                           : "The same without a compositor");
    Figures usual;
    run(argv[0], usualCount, "", usual);
    printMotion(usual);
    if (!isComposited)
        return EXIT_SUCCESS;
    std::map<int, Figures> byCount{{usualCount, usual}};
    for (const int count : {10, fewCount, 1'000, 100'000})
        run(argv[0], count, "", byCount[count]);
    for (int round = 0; round < 4; ++round)
        run(argv[0], usualCount, "first-tiles", byCount[usualCount]);
    printStart(byCount[usualCount]);
    printMemory(usual, byCount[fewCount]);
    for (const auto &[count, figures] : byCount)
        printShelfGrowth(count, figures);
    return EXIT_SUCCESS;
}
