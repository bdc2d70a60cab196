#pragma once

#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/Bookmarks.h"
#include "platform/FileCoordinator.h"
#include "platform/FileFacts.h"
#include "platform/FileReferences.h"
#include "platform/ThumbnailCache.h"

namespace tembra {

// What the edit store needs of the platform. All of it outlives the store.
struct ScreenshotEditServices {
    const FileFactsReader &files;
    const Bookmarks &bookmarks;
    const FileReferences &references;
    const FileCoordinator &coordinator;
    const ThumbnailCache &thumbnails;
    // The queue "Tembra.Editor.IO".
    SerialQueue &queue;
    Scheduler &scheduler;
};

} // namespace tembra
