// Reading a folder of captures, beside a bare loop of readdir, statx and getxattr over the same folder in the
// same run; and how that grows with the folder.

#include "BareLoop.h"
#include "CaptureFolder.h"
#include "Require.h"
#include "Row.h"
#include "Scratch.h"
#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFileFacts.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "screenshots/FolderReader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <fstream>
#include <malloc.h>
#include <map>
#include <unistd.h>

using namespace tembra;
using namespace tembra::bench;

namespace {

constexpr const char *bareLoopName = "readdir, statx, getxattr";

class Scanner {
public:
    explicit Scanner(QString folder) : m_folder(std::move(folder)) {}

    double scan(int expected) {
        FolderScanResult result;
        const double time =
            milliseconds([&] { result = m_reader.readFolder({.folder = m_folder, .now = systemNow()}); });
        require(result.shots.size() == static_cast<std::size_t>(expected), "not every capture was found");
        m_shots = std::move(result.shots);
        return time;
    }

private:
    const QString m_folder;
    const LinuxFileFactsReader m_facts;
    const LinuxFolderFiles m_files{m_facts};
    const LinuxCaptureMarkers m_markers;
    const ScreenshotCaptureDetector m_detector{m_markers, m_files};
    FolderReader m_reader{m_files, m_detector, [] { return QString(); }};
    std::vector<Shot> m_shots;
};

// Of the process.
struct Memory {
    double resident = 0;
    // What is allocated, to the byte.
    double heap = 0;
};

Memory kibibytes() {
    std::ifstream statm("/proc/self/statm");
    long total = 0;
    long resident = 0;
    statm >> total >> resident;
    const struct mallinfo2 heap = mallinfo2();
    return {static_cast<double>(resident * (sysconf(_SC_PAGESIZE) / 1024)),
            static_cast<double>(heap.uordblks + heap.hblkhd) / 1024};
}

struct Figures {
    double bare = 0;
    double first = 0;
    double again = 0;
    // For each capture, in KiB.
    Memory memory;
};

Memory memoryOfShots(const QString &folder, int count) {
    const Memory before = kibibytes();
    Scanner scanner(folder);
    scanner.scan(count);
    const Memory after = kibibytes();
    return {(after.resident - before.resident) / count, (after.heap - before.heap) / count};
}

Figures measure(const QString &folder, int count, int rounds) {
    require(fillWithCaptures(folder, count), "cannot write captures");
    Figures figures;
    // First, while the heap has no room left over.
    figures.memory = memoryOfShots(folder, count);
    std::vector<double> bare;
    std::vector<double> first;
    std::vector<double> again;
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(bareLoop(folder));
        Scanner scanner(folder);
        first.push_back(scanner.scan(count));
        QFile file(QDir(folder).filePath(QStringLiteral("Screenshot from 2001-01-01 00-00-00.png")));
        require(file.open(QIODevice::WriteOnly) && file.write(capturePng()) > 0, "cannot write a capture");
        file.close();
        again.push_back(scanner.scan(count + 1));
        file.remove();
    }
    figures.bare = median(bare);
    figures.first = median(first);
    figures.again = median(again);
    return figures;
}

void printScan(const Figures &ten, const Figures &hundred) {
    printArea("A folder of captures");
    printRow({.what = "first scan of 10,000",
              .ours = ten.first,
              .unit = "ms",
              .peer = Peer{bareLoopName, ten.bare},
              .goal = atMostTimes(6)});
    printRow({.what = "rescan after one new file",
              .ours = ten.again,
              .unit = "ms",
              .peer = Peer{bareLoopName, ten.bare},
              .goal = atMostTimes(1.5)});
    printRow({.what = "first scan of 100,000",
              .ours = hundred.first,
              .unit = "ms",
              .peer = Peer{"that of 10,000", ten.first},
              .goal = atMostTimes(12)});
    printRow({.what = "resident memory a shot, 100,000",
              .ours = hundred.memory.resident,
              .unit = "KiB",
              .goal = atMost(1)});
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir scratch(scratchTemplate("scan-bench"));
    std::map<int, Figures> figures;
    // The largest one first, while the process has nothing of the others.
    for (const auto &[count, rounds] :
         {std::pair{100'000, 3}, {10'000, 9}, {1'000, 21}, {100, 51}, {10, 101}})
        figures[count] = measure(scratch.filePath(QString::number(count)), count, rounds);
    printScan(figures[10'000], figures[100'000]);
    for (const auto &[count, measured] : figures) {
        printGrowth("captures", count, "first scan", "ms", measured.first);
        printGrowth("captures", count, "rescan after one new file", "ms", measured.again);
        printGrowth("captures", count, std::string("bare loop: ") + bareLoopName, "ms", measured.bare);
        printGrowth("captures", count, "heap a shot", "KiB", measured.memory.heap);
    }
    return EXIT_SUCCESS;
}
