#pragma once

#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "editor/model/EditorImageCopies.h"
#include "editor/model/ScreenshotEditStore.h"
#include "platform/FileCoordinator.h"
#include "platform/FileFacts.h"

namespace tembra {

// What the editor's documents need. All of it outlives them, and all but the copies the queues too.
struct EditorDocumentsServices {
    ScreenshotEditStore &store;
    EditorImageCopies &copies;
    const FileCoordinator &coordinator;
    const FileFactsReader &files;
    // The queue "Tembra.Editor.IO".
    SerialQueue &io;
    // The queue "Tembra.Editor.Images".
    SerialQueue &images;
    Scheduler &scheduler;
};

} // namespace tembra
