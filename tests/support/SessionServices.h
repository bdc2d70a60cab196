#pragma once

#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFileReferences.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "platform/linux/LinuxMountedVolumes.h"
#include "platform/linux/LinuxPictureDecoder.h"
#include "platform/linux/LinuxTrash.h"
#include "screenshots/ScreenshotAutoCleanScan.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "session/ShelfSessionServices.h"
#include "support/FakeFilePromises.h"
#include "support/FakeFolderEvents.h"
#include "support/FakePasteboard.h"
#include "support/FakeSounds.h"
#include "support/FakeWorkspace.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"
#include "support/MemoryUserDefaults.h"

#include <QTemporaryDir>

namespace tembra {

// What a session needs: files and a Trash that are real, in scratch folders, the rest of the test.
struct SessionServices {
    QTemporaryDir home;
    QString trashFolder = home.filePath(QStringLiteral("Trash"));
    bool includesSubfolders = true;
    ManualScheduler scheduler;
    ManualQueue autoCleanQueue;
    ManualQueue copyQueue;
    ManualQueue clipboardQueue;
    WallClock now = scheduler.wallClock(systemNow());
    MemoryUserDefaults defaults;
    FakePasteboard pasteboard;
    FakeSounds sounds;
    LinuxFileFactsReader files;
    LinuxFileReferences references{files};
    LinuxMountedVolumes volumes{files};
    FakeFolderEvents trayEvents;
    FakeWorkspace workspace;
    FakeFilePromises promises;
    LinuxFolderFiles folderFiles{files};
    LinuxCaptureMarkers markers;
    LinuxPictureDecoder pictures;
    ScreenshotCaptureDetector detector{markers, folderFiles};
    // Told of every step of a move.
    std::function<void(const char *)> onTrashStep;
    LinuxTrash trash{files, trashFolder, systemNow, [this](const char *step) {
                         if (onTrashStep)
                             onTrashStep(step);
                     }};

    [[nodiscard]] ShelfSessionServices services() { return services(defaults); }
    // With the stored values of somebody else.
    [[nodiscard]] ShelfSessionServices services(UserDefaults &stored) {
        return {.scheduler = scheduler,
                .uptime = scheduler.uptimeClock(),
                .now = now,
                .defaults = stored,
                .files = files,
                .references = references,
                .volumes = volumes,
                .folderEvents = trayEvents,
                .workspace = workspace,
                .promises = promises,
                .trash = trash,
                .pasteboard = pasteboard,
                .pictures = pictures,
                .sounds = sounds,
                .folders = {.trash = {trashFolder}, .temporary = home.filePath(QStringLiteral("temporary"))},
                .autoCleanQueue = autoCleanQueue,
                .copyQueue = copyQueue,
                .clipboardQueue = clipboardQueue,
                .isCapture = [this](const QString &path) { return detector.isCapture(path); },
                .folderTraversal = [this](const QString &) { return includesSubfolders; },
                .autoCleanScan = std::make_shared<ScreenshotAutoCleanScan>(folderFiles, detector,
                                                                           [] { return QString(); })};
    }
};

} // namespace tembra
