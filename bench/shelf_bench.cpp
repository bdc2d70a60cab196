// How the running shelf moves over 10,000 captures, and over 100,000: the time from the pointer's entering
// the notch to the first frame, and the program's own work for each frame of opening, closing and scrolling,
// beside a bare window in the same run. Needs a display; run through bench/run, with and without a
// compositor.

#include "CaptureFolder.h"
#include "FrameWatch.h"
#include "Row.h"
#include "Scratch.h"
#include "ShelfMeasurement.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sstream>

using namespace tembra::bench;

namespace {

// More would take minutes to scroll through.
constexpr int mostScrolledThrough = 10'000;

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
int measure(int argc, char **argv, int count) {
    const QTemporaryDir home(scratchTemplate("shelf-bench"));
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv("TEMBRA_HOME", QFile::encodeName(home.filePath(QStringLiteral("tembra"))));
    qputenv("TEMBRA_SCREENSHOT_TOOL", "generic");
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home.filePath(QStringLiteral("cache"))));
    if (!fillWithCaptures(home.filePath(QStringLiteral("Pictures/Screenshots")), count))
        return EXIT_FAILURE;
    FrameWatch watch(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ShelfMeasurement measurement(watch);
    measurement.firstTiles();
    measurement.openings();
    measurement.bareOpenings();
    measurement.scrolling();
    if (count <= mostScrolledThrough)
        measurement.memoryAfterAll();
    print(measurement.figures());
    return EXIT_SUCCESS;
}

Figures run(const std::string &program, int count) {
    std::FILE *output = popen((program + ' ' + std::to_string(count)).c_str(), "r");
    std::string text;
    for (int character = std::fgetc(output); character != EOF; character = std::fgetc(output))
        text += static_cast<char>(character);
    if (pclose(output) != 0)
        std::exit(EXIT_FAILURE);
    Figures figures;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name;
        words >> name;
        for (double sample = 0; words >> sample;)
            figures[name].push_back(sample);
    }
    return figures;
}

double quantile(std::vector<double> samples, double share) {
    std::ranges::sort(samples);
    return samples[static_cast<std::size_t>(share * static_cast<double>(samples.size() - 1))];
}

// Median, 95th percentile and maximum beside those of the floor, and what is wished for of the 95th.
void printSpread(const char *what, const std::vector<double> &ours, const std::vector<double> &floor,
                 double goal) {
    std::printf("%-44s", what);
    for (const auto *samples : {&ours, &floor})
        std::printf("  %6.2f %6.2f %6.2f", quantile(*samples, 0.5), quantile(*samples, 0.95),
                    quantile(*samples, 1));
    std::printf(" ms  <= %.0f  %s\n", goal, quantile(ours, 0.95) <= goal ? "pass" : "FALLS SHORT");
}

void printMotion(int count, Figures figures) {
    std::printf("%d captures; median, 95th of a hundred and longest, and the same of a bare window\n", count);
    printSpread("pointer in the notch to the first frame", figures["notch"], figures["bare-notch"], 16);
    for (const std::string name : {"opening", "closing", "scrolling"}) {
        printSpread((name + ", work a frame").c_str(), figures[name], figures["bare-frame"], 8);
        printSpread((name + ", processor time a frame").c_str(), figures[name + "-processor"],
                    figures["bare-frame-processor"], 8);
    }
    printRow("end of the first scan to the first tiles / 100 ms", median(figures["tiles"]), 100, "ms", 1);
    printRow("… to their pictures / 100 ms", median(figures["pictures"]), 100, "ms", 1);
}

} // namespace

int main(int argc, char **argv) {
    if (argc == 2)
        return measure(argc, argv, QByteArray(argv[1]).toInt());
    const Figures few = run(argv[0], 100);
    const Figures many = run(argv[0], mostScrolledThrough);
    printMotion(mostScrolledThrough, many);
    printMotion(100'000, run(argv[0], 100'000));
    // A program that runs beside only one of the two takes a part of the proportional memory off it; the
    // resident one counts what is shared in full.
    for (const std::string kind : {"proportional", "resident"}) {
        const std::string name = kind + "-memory";
        printRow((kind + " memory, 10,000 scrolled through / 100").c_str(), median(many.at(name)),
                 median(few.at(name)), "MiB", 1.5);
    }
    return EXIT_SUCCESS;
}
