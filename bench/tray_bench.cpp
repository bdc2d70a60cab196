// The file tray with many files: how long adding them takes beside a bare loop of statx, and what ten
// thousand events in a second cost the main thread.

#include "CaptureFolder.h"
#include "Row.h"
#include "Scratch.h"
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
using Clock = std::chrono::steady_clock;

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

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
    printRow("adding 1,000 files / 2 bare statx loops + 20 ms", median(ours), 2 * median(bare) + 20, "ms", 1);
    printRow("changes told of meanwhile", changes, 1, "", 1);
}

// Renames one of the files back and forth: two events each time.
void raiseEvents(const QByteArray &file, std::atomic<bool> &isDone) {
    const QByteArray moved = file + "~";
    const auto start = Clock::now();
    for (int i = 0; i < eventCount / 2; ++i) {
        const bool isBack = i % 2 == 1;
        static_cast<void>(
            std::rename((isBack ? moved : file).constData(), (isBack ? file : moved).constData()));
        std::this_thread::sleep_until(start + i * 2s / eventCount);
    }
    isDone = true;
}

void measureEvents(const QStringList &paths) {
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
    double longestHold = 0;
    auto lastTurn = Clock::now();
    WorkItem turn;
    std::function<void()> takeTurn = [&] {
        longestHold = std::max(longestHold, since(lastTurn));
        lastTurn = Clock::now();
        turn = tray.scheduler.schedule(0ns, takeTurn);
    };
    takeTurn();
    std::atomic<bool> isDone = false;
    std::thread raiser([&] { raiseEvents(QFile::encodeName(paths.first()), isDone); });
    while (!isDone)
        turnFor(20ms);
    turnFor(500ms);
    raiser.join();
    printRow("reconciliations in 10,000 events a second", double(inspections) / fileCount, 7, "", 1);
    printRow("longest hold of the main thread meanwhile / 16 ms", longestHold, 16, "ms", 1);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder(scratchTemplate("tray-bench"));
    if (!fillWithCaptures(folder.path(), fileCount)) {
        std::fputs("cannot write files\n", stderr);
        return EXIT_FAILURE;
    }
    QStringList paths;
    const QStringList names = QDir(folder.path()).entryList(QDir::Files);
    for (const QString &name : names)
        paths += folder.filePath(name);
    measureAdding(paths);
    measureEvents(paths);
    return EXIT_SUCCESS;
}
