#pragma once

#include "base/Clocks.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/FileFacts.h"
#include "platform/FilePromises.h"
#include "platform/FileReferences.h"
#include "platform/FolderEvents.h"
#include "platform/Pasteboard.h"
#include "platform/PictureDecoder.h"
#include "platform/Sounds.h"
#include "platform/StandardFolders.h"
#include "platform/Trash.h"
#include "platform/UserDefaults.h"
#include "platform/Volumes.h"
#include "platform/Workspace.h"

#include <functional>
#include <memory>

namespace tembra {

class ScreenshotAutoCleanScan;

// What the session takes from the platform and from the composition root; everything outlives it.
struct ShelfSessionServices {
    Scheduler &scheduler;
    UptimeClock uptime;
    WallClock now;
    UserDefaults &defaults;
    const FileFactsReader &files;
    const FileReferences &references;
    const Volumes &volumes;
    FolderEvents &folderEvents;
    Workspace &workspace;
    FilePromises &promises;
    Trash &trash;
    Pasteboard &pasteboard;
    const PictureDecoder &pictures;
    Sounds &sounds;
    StandardFolders folders;
    // The queues "Tembra.AutoClean", "local.dova.Tembra.screenshot-copy" and "Tembra.Clipboard.IO".
    SerialQueue &autoCleanQueue;
    SerialQueue &copyQueue;
    SerialQueue &clipboardQueue;
    // Whether a file is a capture, asked on the main thread.
    std::function<bool(const QString &path)> isCapture;
    // Whether the subfolders of a folder belong to it.
    std::function<bool(const QString &folder)> folderTraversal;
    // Used on the auto-clean queue alone.
    std::shared_ptr<const ScreenshotAutoCleanScan> autoCleanScan;
};

} // namespace tembra
