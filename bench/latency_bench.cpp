// From the renaming of a finished capture to the new-files callback, and on to the painted notification, in
// the running parts of the program. Needs a display; run through bench/run.

#include "CaptureFolder.h"
#include "Row.h"
#include "Scratch.h"
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
#include "tray/ClipboardStore.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

using namespace tembra;
using namespace tembra::bench;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void turnUntil(const std::function<bool()> &condition) {
    const auto start = Clock::now();
    while (!condition()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
        if (since(start) > 10'000) {
            std::fprintf(stderr, "waited in vain\n");
            std::exit(1);
        }
    }
}

// Notices when a widget was painted.
class PaintWatch final : public QObject {
public:
    bool painted = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        painted = painted || event->type() == QEvent::UpdateRequest || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

void rename(const QDir &folder, int number) {
    const QString hidden = folder.filePath(QStringLiteral(".writing"));
    QFile file(hidden);
    if (!file.open(QIODevice::WriteOnly) || file.write(capturePng()) < 0)
        std::exit(1);
    file.close();
    QFile::rename(
        hidden,
        folder.filePath(
            QStringLiteral("Screenshot from 2002-01-01 00-%1-00.png").arg(number, 2, 10, QLatin1Char('0'))));
}

} // namespace

int main(int argc, char **argv) {
    const QTemporaryDir home(scratchTemplate("latency-bench"));
    qputenv("TEMBRA_HOME", QFile::encodeName(home.path()));
    const QApplication application(argc, argv);
    const QDir folder(home.filePath(QStringLiteral("captures")));
    if (!fillWithCaptures(folder.path(), 10'000))
        return 1;

    QtScheduler scheduler;
    const Platform platform = makePlatform(scheduler);
    const ScreenshotCaptureDetector detector(*platform.captureMarkers, *platform.folderFiles);
    ThreadQueue queue(QStringLiteral("Tembra.FolderScan"));
    FileWatcherService watcher(
        {*platform.folderEvents, scheduler, systemUptime, systemNow, queue, detector,
         [](const QString &) { return true; }},
        std::make_shared<FolderReader>(*platform.folderFiles, detector, [] { return QString(); }));
    OCRRecognizer recognizer(*platform.textRecognizer, *platform.pictureDecoder, queue);
    const ShelfServices services{scheduler,
                                 systemUptime,
                                 systemNow,
                                 *platform.displays,
                                 *platform.workspace,
                                 *platform.inputMonitor,
                                 *platform.panelWindows,
                                 *platform.hotZones,
                                 *platform.hotKeys,
                                 *platform.pasteboard,
                                 *platform.thumbnails,
                                 *platform.fileFacts,
                                 *platform.pictureDecoder,
                                 recognizer,
                                 queue};
    ClipboardStore store({.scheduler = scheduler,
                          .uptime = systemUptime,
                          .files = *platform.fileFacts,
                          .references = *platform.fileReferences,
                          .volumes = *platform.volumes,
                          .folderEvents = *platform.folderEvents,
                          .workspace = *platform.workspace,
                          .promises = *platform.filePromises,
                          .queue = queue,
                          .folders = {.temporary = folder.path()}});
    ShelfContent content(services, store);
    PaintWatch paintWatch;
    content.installEventFilter(&paintWatch);
    ShelfSurfaces surfaces(services, [&content]() -> QWidget & { return content; });
    surfaces.onPointerActivity = [] {};
    surfaces.reconcileDisplayWindows(DisplayPreference::main);

    FolderShelf shelf;
    shelf.url = folder.path();
    std::optional<double> arrivedAfter;
    Clock::time_point start;
    watcher.onNewFiles = [&](const std::vector<Shot> &shots) {
        arrivedAfter = since(start);
        surfaces.activateForOpening(DisplayPreference::main, {});
        content.apply(
            {.notification = CaptureNotification{QStringLiteral("Got it"), {shots.front().location}, 1}});
        paintWatch.painted = false;
        surfaces.present(ShelfPresentation::notification({360, 84}));
    };
    watcher.start(shelf);
    turnUntil([&] { return shelf.hasCompletedInitialScan; });

    std::vector<double> arrivals;
    std::vector<double> paints;
    for (int round = 0; round < 21; ++round) {
        arrivedAfter.reset();
        start = Clock::now();
        rename(folder, round);
        turnUntil([&] { return arrivedAfter.has_value() && paintWatch.painted; });
        arrivals.push_back(*arrivedAfter);
        paints.push_back(since(start) - *arrivedAfter);
        surfaces.present(ShelfPresentation::collapsed());
        const auto pause = Clock::now();
        while (since(pause) < 700)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    printRow("rename to new-files callback / 0.1 s + 0.08 s + 20 ms", median(arrivals), 200, "ms", 1);
    printRow("callback to painted notification / 50 ms", median(paints), 50, "ms", 1);
    return 0;
}
