// Auto-clean's look at a large folder, beside a bare loop over it, and the removal of many captures in the
// running parts of the program, beside the desktop's own tool. Needs a display; run through bench/run.

#include "BareLoop.h"
#include "CaptureFolder.h"
#include "Require.h"
#include "Row.h"
#include "Scratch.h"
#include "Timing.h"
#include "TurnWatch.h"
#include "base/QtScheduler.h"
#include "base/ThreadQueue.h"
#include "platform/Platform.h"
#include "screenshots/FolderReader.h"
#include "screenshots/ScreenshotAutoCleanScan.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdlib>

using namespace tembra;
using namespace tembra::bench;
using namespace std::chrono_literals;

namespace {

constexpr int rounds = 5;
constexpr int removedCount = 1'000;

QString noPrefix() {
    return {};
}

void measureScan(const QString &folder, const Platform &platform, const ScreenshotCaptureDetector &detector) {
    constexpr int count = 100'000;
    require(fillWithCaptures(folder, count), "cannot write captures");
    const ScreenshotAutoCleanScan scan(*platform.folderFiles, detector, noPrefix);
    const Instant later = systemNow() + 1h;
    std::vector<double> bare;
    std::vector<double> ours;
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(bareLoop(folder));
        ours.push_back(milliseconds([&] {
            const auto found =
                scan.candidates({.root = folder, .includesSubfolders = true, .cutoff = later, .now = later});
            require(found && found->size() == count, "not every capture was found");
        }));
    }
    printRow({.what = "auto-clean's scan of 100,000",
              .ours = median(ours),
              .unit = "ms",
              .peer = Peer{"readdir, statx, getxattr", median(bare)},
              .goal = atMostTimes(3)});
}

AppSettings::Functions settingsFunctions(const Bookmarks &bookmarks) {
    return {.updateSystemFolder = [](const QString &) { return Result<void>(); },
            .thumbnailPreference = {[] { return std::nullopt; }, [](auto) { return Result<void>(); }},
            .createBookmark = [&bookmarks](const QString &path) { return bookmarks.create(path); },
            .resolvePinnedBookmark = [](const QByteArray &) -> Result<PinnedScreenshot::Resolved> {
                return failure({.domain = Bookmarks::errorDomain, .code = Bookmarks::gone});
            },
            .bookmarkedFile = [](const QByteArray &) { return std::nullopt; }};
}

// A shelf's session over a folder, with everything real.
class RunningSession {
public:
    RunningSession(Platform &platform, QtScheduler &scheduler, const ScreenshotCaptureDetector &detector,
                   const QString &folder)
        : m_scheduler(scheduler),
          m_settings(*platform.defaults, FolderPreferences(),
                     ScreenshotFolderAccess(*platform.bookmarks, *platform.fileFacts, platform.folders),
                     settingsFunctions(*platform.bookmarks)) {
        const auto traversal = [](const QString &) { return true; };
        require(m_settings.grantScreenshotsFolder(folder, false, false).has_value(), "no access");
        m_session = std::make_unique<ShelfSession>(
            m_settings,
            ShelfSessionServices{
                scheduler,
                systemUptime,
                systemNow,
                *platform.defaults,
                *platform.fileFacts,
                *platform.fileReferences,
                *platform.volumes,
                *platform.folderEvents,
                *platform.workspace,
                *platform.filePromises,
                *platform.trash,
                *platform.pasteboard,
                *platform.pictureDecoder,
                *platform.sounds,
                platform.folders,
                m_cleanQueue,
                m_copyQueue,
                m_trayQueue,
                [&detector](const QString &path) { return detector.isCapture(path); },
                traversal,
                std::make_shared<ScreenshotAutoCleanScan>(*platform.folderFiles, detector, noPrefix)},
            std::make_unique<FileWatcherService>(
                FileWatcherService::Services{*platform.folderEvents, scheduler, systemUptime, systemNow,
                                             m_scanQueue, detector, traversal},
                std::make_shared<FolderReader>(*platform.folderFiles, detector, noPrefix)));
        m_session->onError = [](const QString &, const QString &message) {
            require(false, qPrintable(message));
        };
        m_session->refreshWatcher();
        waitFor([this] { return m_session->folderShelf().shots.size() == removedCount; });
    }

    struct Removal {
        double whole = 0;
        double longestHold = 0;
    };

    // In milliseconds; the longest time between two turns of the event loop.
    Removal removeAll() {
        bool isDone = false;
        m_session->onChange = [&isDone] { isDone = true; };
        const TurnWatch watch(m_scheduler);
        const auto start = Clock::now();
        m_scheduler.post([this] { m_session->removeScreenshots(m_session->folderShelf().shots); });
        waitFor([&isDone] { return isDone; });
        const double whole = millisecondsSince(start);
        // What the watcher makes of it follows.
        while (millisecondsSince(start) < whole + 500)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return {whole, watch.longestHold()};
    }

private:
private:
    static void waitFor(const std::function<bool()> &condition) {
        const auto start = Clock::now();
        while (!condition()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
            require(millisecondsSince(start) < 60'000, "waited in vain");
        }
    }

    QtScheduler &m_scheduler;
    ThreadQueue m_scanQueue{QStringLiteral("scan")};
    ThreadQueue m_cleanQueue{QStringLiteral("clean")};
    ThreadQueue m_copyQueue{QStringLiteral("copy")};
    ThreadQueue m_trayQueue{QStringLiteral("tray")};
    AppSettings m_settings;
    std::unique_ptr<ShelfSession> m_session;
};

double trashWithTool(const QString &folder) {
    QStringList arguments{QStringLiteral("trash")};
    const QStringList names = QDir(folder).entryList(QDir::Files);
    for (const QString &name : names)
        arguments += folder + u'/' + name;
    return milliseconds([&arguments] {
        require(QProcess::execute(QStringLiteral("gio"), arguments) == 0, "gio trash did not work");
    });
}

void measureRemoval(const QDir &scratch, Platform &platform, QtScheduler &scheduler,
                    const ScreenshotCaptureDetector &detector) {
    const bool hasTool = !QStandardPaths::findExecutable(QStringLiteral("gio")).isEmpty();
    if (!hasTool)
        printNote("gio is not installed");
    std::vector<double> ours;
    std::vector<double> tools;
    std::vector<double> holds;
    for (int round = 0; round < rounds; ++round) {
        const QString folder = scratch.filePath(QStringLiteral("ours%1").arg(round));
        const QString toolFolder = scratch.filePath(QStringLiteral("tool%1").arg(round));
        require(fillWithCaptures(folder, removedCount) && fillWithCaptures(toolFolder, removedCount),
                "cannot write captures");
        if (hasTool) {
            QDir(platform.folders.trash.constFirst()).removeRecursively();
            tools.push_back(trashWithTool(toolFolder));
        }
        QDir(platform.folders.trash.constFirst()).removeRecursively();
        RunningSession session(platform, scheduler, detector, folder);
        const auto removal = session.removeAll();
        require(QDir(folder).isEmpty(), "not every capture went");
        ours.push_back(removal.whole);
        holds.push_back(removal.longestHold);
    }
    printRow({.what = "removal of 1,000",
              .ours = median(ours),
              .unit = "ms",
              .peer = hasTool ? std::optional(Peer{"gio trash", median(tools)}) : std::nullopt,
              .goal = atMostTimes(2)});
    printRow({.what = "longest hold of the main thread meanwhile",
              .ours = longest(holds),
              .unit = "ms",
              .goal = atMost(50)});
}

} // namespace

int main(int argc, char **argv) {
    const QTemporaryDir home(scratchTemplate("clean-bench"));
    qputenv("TEMBRA_HOME", QFile::encodeName(home.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.filePath(QStringLiteral("share"))));
    const QApplication application(argc, argv);
    QtScheduler scheduler;
    Platform platform = makePlatform(scheduler);
    const ScreenshotCaptureDetector detector(*platform.captureMarkers, *platform.folderFiles);
    printArea("Auto-clean and removal");
    measureScan(home.filePath(QStringLiteral("large")), platform, detector);
    measureRemoval(QDir(home.path()), platform, scheduler, detector);
    return EXIT_SUCCESS;
}
