// idle_bench COUNT TEMBRA BARE [OTHER…]: the memory and the wake-ups of the program while it knows COUNT
// captures, beside a bare Qt Widgets window and other programs that wait for a screenshot to be taken. Needs
// an X display without a window manager. Uses no Qt itself: what it shared with them they would seem to need
// less of. Run through bench/run, in a home of in_user_home.

#include "Child.h"
#include "Row.h"

#include <cstdlib>
#include <filesystem>
#include <thread>

using namespace std::chrono_literals;
using namespace tembra::bench;

namespace {

// What the table is about; of any other count only the growth is told.
constexpr int usualCount = 10'000;

struct Idle {
    double mebibytes = 0;
    long wakeUps = 0;
};

Idle idle(const std::string &program, std::chrono::seconds watched) {
    const Child child({program});
    child.awaitRest();
    const long before = child.wakeUps();
    std::this_thread::sleep_for(watched);
    return {static_cast<double>(child.proportionalKiB()) / 1024, child.wakeUps() - before};
}

void printMemory(double ours, const std::string &name, double theirs, std::optional<Goal> goal) {
    printRow({.what = "idle proportional memory",
              .ours = ours,
              .unit = "MiB",
              .peer = Peer{name, theirs},
              .goal = goal});
}

} // namespace

int main(int argc, char **argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: idle_bench COUNT TEMBRA BARE [OTHER...]\n");
        return 2;
    }
    const int count = std::atoi(argv[1]);
    const Idle ours = idle(argv[2], count == usualCount ? 10s : 0s);
    if (count == usualCount) {
        const Idle bare = idle(argv[3], 10s);
        printMemory(ours.mebibytes, "a bare Qt window", bare.mebibytes, atMostTimes(1.8));
        for (int other = 4; other < argc; ++other)
            printMemory(ours.mebibytes, std::filesystem::path(argv[other]).filename(),
                        idle(argv[other], 0s).mebibytes, {});
        printRow({.what = "wake-ups in 10 idle seconds",
                  .ours = double(ours.wakeUps),
                  .peer = Peer{"a bare Qt window", double(bare.wakeUps)},
                  .goal = atMost(0)});
    }
    printGrowth("captures", count, "idle proportional memory", "MiB", ours.mebibytes);
    return EXIT_SUCCESS;
}
