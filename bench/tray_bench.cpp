// The file tray with many files: how long adding them takes beside a bare loop of statx, and what ten
// thousand events in a second cost the main thread.

#include "CaptureFolder.h"
#include "Require.h"
#include "Row.h"
#include "Scratch.h"
#include "Timing.h"
#include "TurnWatch.h"
#include "base/QtScheduler.h"
#include "base/ThreadQueue.h"
#include "platform/linux/InotifyFolderEvents.h"
#include "platform/linux/LinuxFileReferences.h"
#include "platform/linux/LinuxMountedVolumes.h"
#include "tray/ClipboardStore.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>

using namespace tembra;
using namespace tembra::bench;
using namespace std::chrono_literals;

namespace {

constexpr int fileCount = 1'000;
constexpr int eventCount = 10'000;
constexpr int rounds = 5;
// Nothing mounts, wakes or promises anything here.
class QuietWorkspace final : public Workspace {
public:
    std::unique_ptr<Observation> observe(std::function<void(Event)>) override { return nullptr; }
    bool isComposited() const override { return true; }
    Result<void> reveal(const QStringList &) override { return {}; }
    Result<void> openFolder(const QString &) override { return {}; }
    std::vector<Application> applicationsFor(const QStringList &) const override { return {}; }
    Result<void> open(const QStringList &, const QString &) override { return {}; }
    Result<void> openLink(const QUrl &) override { return {}; }
};

class NoPromises final : public FilePromises {
public:
    void receive(const QMimeData &, const QString &, std::function<void(Result<Delivery>)>) override {}
};

// A tray with everything that adding and watching needs.
struct Tray {
    QTemporaryDir home;
    QtScheduler scheduler;
    LinuxFileFactsReader files;
    LinuxFileReferences references{files};
    LinuxMountedVolumes volumes{files};
    InotifyFolderEvents events{files, scheduler};
    QuietWorkspace workspace;
    NoPromises promises;
    ThreadQueue queue{QStringLiteral("tray")};
    ClipboardStore store{{.scheduler = scheduler,
                          .uptime = systemUptime,
                          .files = files,
                          .references = references,
                          .volumes = volumes,
                          .folderEvents = events,
                          .workspace = workspace,
                          .promises = promises,
                          .queue = queue,
                          .folders = {.temporary = home.path()}}};
};

double bareStatx(const QStringList &paths) {
    return milliseconds([&paths] {
        for (const QString &path : paths) {
            struct statx facts {};
            statx(AT_FDCWD, QFile::encodeName(path).constData(), AT_SYMLINK_NOFOLLOW,
                  STATX_BASIC_STATS | STATX_BTIME, &facts);
        }
    });
}

void turnFor(std::chrono::milliseconds time) {
    const auto start = Clock::now();
    while (Clock::now() - start < time)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
}

void measureAdding(const QStringList &paths) {
    std::vector<double> bare;
    std::vector<double> ours;
    int changes = 0;
    for (int round = 0; round < rounds; ++round) {
        Tray tray;
        tray.store.startMonitoring();
        changes = 0;
        tray.store.onChange = [&changes] { ++changes; };
        bare.push_back(bareStatx(paths));
        ours.push_back(milliseconds([&] { tray.store.add(tray.store.importGeneration(), paths); }));
        turnFor(200ms);
    }
    printArea("The file tray");
    printRow({.what = "adding 1,000 files",
              .ours = median(ours),
              .unit = "ms",
              .peer = Peer{"two loops of statx + 20 ms", 2 * median(bare) + 20},
              .goal = atMostTimes(1)});
    printRow({.what = "repaints for them", .ours = double(changes), .goal = atMost(1)});
}

// Renames one of the files back and forth: two events each time.
void raiseEvents(const QByteArray &file, std::atomic<bool> &isDone) {
    const QByteArray moved = file + "~";
    const auto start = Clock::now();
    for (int i = 0; i < eventCount / 2; ++i) {
        const bool isBack = i % 2 == 1;
        static_cast<void>(
            std::rename((isBack ? moved : file).constData(), (isBack ? file : moved).constData()));
        std::this_thread::sleep_until(start + i * 2 * std::chrono::nanoseconds(1s) / eventCount);
    }
    isDone = true;
}

// The longest hold of the main thread while the events come.
double holdDuringEvents(const QString &file, Scheduler &scheduler) {
    const TurnWatch watch(scheduler);
    std::atomic<bool> isDone = false;
    std::thread raiser([&] { raiseEvents(QFile::encodeName(file), isDone); });
    while (!isDone)
        turnFor(20ms);
    turnFor(500ms);
    raiser.join();
    return watch.longestHold();
}

void measureEvents(const QStringList &paths, const QString &elsewhere) {
    Tray tray;
    tray.store.startMonitoring();
    tray.store.add(tray.store.importGeneration(), paths);
    turnFor(300ms);
    int inspections = 0;
    const auto inspect = tray.store.inspectEntry;
    tray.store.inspectEntry = [&](const ClipboardEntry &entry) {
        ++inspections;
        return inspect(entry);
    };
    const double idleHold = holdDuringEvents(elsewhere, tray.scheduler);
    inspections = 0;
    const double hold = holdDuringEvents(paths.first(), tray.scheduler);
    printRow({.what = "reconciliations for 10,000 events in a second",
              .ours = double(inspections) / fileCount,
              .goal = atMost(7)});
    printRow({.what = "longest hold of the main thread meanwhile",
              .ours = hold,
              .unit = "ms",
              .peer = Peer{"events elsewhere", idleHold},
              .goal = atMost(16)});
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder(scratchTemplate("tray-bench"));
    require(fillWithCaptures(folder.path(), fileCount), "cannot write files");
    QStringList paths;
    const QStringList names = QDir(folder.path()).entryList(QDir::Files);
    for (const QString &name : names)
        paths += folder.filePath(name);
    measureAdding(paths);
    const QTemporaryDir elsewhere(scratchTemplate("tray-bench-elsewhere"));
    require(fillWithCaptures(elsewhere.path(), 1), "cannot write files");
    measureEvents(paths, elsewhere.filePath(QDir(elsewhere.path()).entryList(QDir::Files).first()));
    return EXIT_SUCCESS;
}
