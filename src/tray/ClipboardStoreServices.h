#pragma once

#include "base/Clocks.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/FileFacts.h"
#include "platform/FilePromises.h"
#include "platform/FileReferences.h"
#include "platform/FolderEvents.h"
#include "platform/StandardFolders.h"
#include "platform/Volumes.h"
#include "platform/Workspace.h"

namespace tembra {

// What the file tray takes from the platform; everything outlives it.
struct ClipboardStoreServices {
    Scheduler &scheduler;
    UptimeClock uptime;
    const FileFactsReader &files;
    const FileReferences &references;
    const Volumes &volumes;
    FolderEvents &folderEvents;
    Workspace &workspace;
    FilePromises &promises;
    // The queue "Tembra.Clipboard.IO".
    SerialQueue &queue;
    StandardFolders folders;
};

} // namespace tembra
