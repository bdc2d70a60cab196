// From the renaming of a finished capture, or the closing of one written in its place, to the new-files
// callback, and on to the painted notification, in the running parts of the program. Needs a display; run
// through bench/run.

#include "CaptureFolder.h"
#include "Require.h"
#include "Row.h"
#include "Scratch.h"
#include "Timing.h"
#include "base/QtScheduler.h"
#include "base/ThreadQueue.h"
#include "platform/Platform.h"
#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFileFacts.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "recognition/model/OCRRecognizer.h"
#include "screenshots/FileWatcherService.h"
#include "screenshots/FolderReader.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfSurfaces.h"
#include "shelf/ShelfView.h"
#include "tray/ClipboardStore.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

using namespace tembra;
using namespace tembra::bench;

namespace {

constexpr int rounds = 15;

void turnUntil(const std::function<bool()> &condition) {
    const auto start = Clock::now();
    while (!condition()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
        require(millisecondsSince(start) < 10'000, "waited in vain");
    }
}

// Notices when a widget was painted while something of the shelf can be seen.
class PaintWatch final : public QObject {
public:
    bool painted = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Paint)
            painted = painted || isSeen(static_cast<QWidget *>(watched));
        return QObject::eventFilter(watched, event);
    }

private:
    static bool isSeen(const QWidget *widget) {
        while (widget && !qobject_cast<const ShelfView *>(widget))
            widget = widget->parentWidget();
        return widget && static_cast<const ShelfView *>(widget)->body().height() >= 1;
    }
};

enum class Writing { besideAndRename, inPlace };

void write(const QString &path) {
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(capturePng()) > 0, "cannot write a capture");
}

// A new capture; gives the moment from which the program can know that it is whole.
Clock::time_point capture(const QDir &folder, int number, Writing writing) {
    const QString path = folder.filePath(
        QStringLiteral("Screenshot from 2002-01-01 00-%1-00.png").arg(number, 2, 10, QLatin1Char('0')));
    const QString hidden = folder.filePath(QStringLiteral(".writing"));
    write(writing == Writing::inPlace ? path : hidden);
    const auto start = Clock::now();
    if (writing == Writing::besideAndRename)
        QFile::rename(hidden, path);
    return start;
}

// What a capture meets on its way to the notification, over a folder.
class Road {
public:
    explicit Road(const QDir &folder) : m_folder(folder) {
        m_content.installEventFilter(&m_paintWatch);
        m_surfaces.onPointerActivity = [] {};
        m_surfaces.reconcileDisplayWindows(DisplayPreference::main);
        m_shelf.url = folder.path();
        m_watcher.onNewFiles = [this](const std::vector<Shot> &shots) { announce(shots); };
        m_watcher.start(m_shelf);
        turnUntil([this] { return m_shelf.hasCompletedInitialScan; });
    }

    // Median milliseconds until the program knows of a capture; how long the painting took is kept.
    double measure(Writing writing) {
        std::vector<double> arrivals;
        for (int round = 0; round < rounds; ++round) {
            m_arrived.reset();
            const auto start = capture(m_folder, m_number++, writing);
            turnUntil([this] { return m_arrived.has_value() && m_paintWatch.painted; });
            m_paints.push_back(millisecondsSince(*m_arrived));
            arrivals.push_back(millisecondsBetween(start, *m_arrived));
            m_surfaces.present(ShelfPresentation::collapsed());
            const auto pause = Clock::now();
            while (millisecondsSince(pause) < 700)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return median(arrivals);
    }
    [[nodiscard]] double painting() const { return median(m_paints); }

private:
    void announce(const std::vector<Shot> &shots) {
        m_arrived = Clock::now();
        m_surfaces.activateForOpening(DisplayPreference::main, {});
        m_content.apply(
            {.notification = CaptureNotification{QStringLiteral("Got it"), {shots.front().location}, 1}});
        m_paintWatch.painted = false;
        m_surfaces.present(ShelfPresentation::notification({360, 84}));
    }

    const QDir m_folder;
    QtScheduler m_scheduler;
    const Platform m_platform = makePlatform(m_scheduler);
    const ScreenshotCaptureDetector m_detector{*m_platform.captureMarkers, *m_platform.folderFiles};
    ThreadQueue m_queue{QStringLiteral("Tembra.FolderScan")};
    FileWatcherService m_watcher{
        {*m_platform.folderEvents, m_scheduler, systemUptime, systemNow, m_queue, m_detector,
         [](const QString &) { return true; }},
        std::make_shared<FolderReader>(*m_platform.folderFiles, m_detector, [] { return QString(); })};
    OCRRecognizer m_recognizer{*m_platform.textRecognizer, *m_platform.pictureDecoder, m_queue};
    const ShelfServices m_services{m_scheduler,
                                   systemUptime,
                                   systemNow,
                                   *m_platform.displays,
                                   *m_platform.workspace,
                                   *m_platform.inputMonitor,
                                   *m_platform.panelWindows,
                                   *m_platform.hotZones,
                                   *m_platform.hotKeys,
                                   *m_platform.pasteboard,
                                   *m_platform.thumbnails,
                                   *m_platform.fileFacts,
                                   *m_platform.pictureDecoder,
                                   m_recognizer,
                                   m_queue};
    ClipboardStore m_store{{.scheduler = m_scheduler,
                            .uptime = systemUptime,
                            .files = *m_platform.fileFacts,
                            .references = *m_platform.fileReferences,
                            .volumes = *m_platform.volumes,
                            .folderEvents = *m_platform.folderEvents,
                            .workspace = *m_platform.workspace,
                            .promises = *m_platform.filePromises,
                            .queue = m_queue,
                            .folders = {.temporary = m_folder.path()}}};
    PaintWatch m_paintWatch;
    ShelfContent m_content{m_services, m_store};
    ShelfSurfaces m_surfaces{m_services, [this]() -> QWidget & { return m_content; }};
    FolderShelf m_shelf;
    int m_number = 0;
    std::optional<Clock::time_point> m_arrived;
    std::vector<double> m_paints;
};

} // namespace

int main(int argc, char **argv) {
    const QTemporaryDir home(scratchTemplate("latency-bench"));
    qputenv("TEMBRA_HOME", QFile::encodeName(home.path()));
    const QApplication application(argc, argv);
    const QDir folder(home.filePath(QStringLiteral("captures")));
    require(fillWithCaptures(folder.path(), 10'000), "cannot write captures");
    Road road(folder);
    printArea("A new capture, 10,000 known");
    printRow({.what = "rename to new-files callback",
              .ours = road.measure(Writing::besideAndRename),
              .unit = "ms",
              .goal = atMost(200)});
    printRow({.what = "close to new-files callback",
              .ours = road.measure(Writing::inPlace),
              .unit = "ms",
              .goal = atMost(200)});
    printRow({.what = "callback to painted notification",
              .ours = road.painting(),
              .unit = "ms",
              .goal = atMost(50)});
    return EXIT_SUCCESS;
}
