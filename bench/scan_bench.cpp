// Reading a folder of captures, beside a bare loop of readdir, statx and getxattr over the same folder in the
// same run.

#include "BareLoop.h"
#include "CaptureFolder.h"
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

#include <fstream>
#include <unistd.h>

using namespace tembra;
using namespace tembra::bench;

namespace {

class Scanner {
public:
    explicit Scanner(QString folder) : m_folder(std::move(folder)) {}

    double scan(std::size_t expected) {
        FolderScanResult result;
        const double time =
            milliseconds([&] { result = m_reader.readFolder({.folder = m_folder, .now = systemNow()}); });
        if (result.shots.size() != expected) {
            std::fprintf(stderr, "%zu shots found, %zu expected\n", result.shots.size(), expected);
            std::exit(1);
        }
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

long residentKiB() {
    std::ifstream statm("/proc/self/statm");
    long total = 0;
    long resident = 0;
    statm >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

void fill(const QString &folder, int count) {
    if (!fillWithCaptures(folder, count)) {
        std::fprintf(stderr, "cannot write to %s\n", qPrintable(folder));
        std::exit(1);
    }
}

struct Medians {
    double bare = 0;
    double first = 0;
    double again = 0;
};

Medians measure(const QString &folder, int count, int rounds) {
    std::vector<double> bare;
    std::vector<double> first;
    std::vector<double> again;
    auto expected = static_cast<std::size_t>(count);
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(bareLoop(folder));
        Scanner scanner(folder);
        first.push_back(scanner.scan(expected));
        QFile file(QDir(folder).filePath(
            QStringLiteral("Screenshot from 2001-01-01 00-00-%1.png").arg(round, 2, 10, QLatin1Char('0'))));
        if (!file.open(QIODevice::WriteOnly) || file.write(capturePng()) < 0)
            std::exit(1);
        file.close();
        again.push_back(scanner.scan(++expected));
    }
    return {median(bare), median(first), median(again)};
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir scratch(scratchTemplate("scan-bench"));
    const QString small = scratch.filePath(QStringLiteral("small"));
    const QString large = scratch.filePath(QStringLiteral("large"));
    fill(small, 10'000);
    const Medians ten = measure(small, 10'000, 9);
    printRow("first scan of 10,000 / bare loop", ten.first, ten.bare, "ms", 6);
    printRow("rescan after one new file / bare loop", ten.again, ten.bare, "ms", 1.5);

    fill(large, 100'000);
    const long before = residentKiB();
    Scanner scanner(large);
    scanner.scan(100'000);
    const double perShot = static_cast<double>(residentKiB() - before) / 100'000;
    printRow("resident memory a shot at 100,000 / 1 KiB", perShot, 1, "KiB", 1);
    const Medians hundred = measure(large, 100'000, 3);
    printRow("first scan of 100,000 / of 10,000", hundred.first, ten.first, "ms", 12);
    return 0;
}
