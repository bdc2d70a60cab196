#pragma once

#include "base/Clocks.h"
#include "platform/FileFacts.h"
#include "screenshots/AutoCleanCancellation.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <memory>

namespace tembra {

// What a run of auto-clean goes by: copied on the main thread, used on the queue. A value.
struct AutoCleanRequest {
    QString root;
    bool includesSubfolders = false;
    // Files made before this are old.
    Instant cutoff{};
    Instant now{};
    // Pinned files, by path and by what the file system knows them by.
    QSet<QString> pinnedPaths;
    QSet<FileResource> pinnedFiles;
    // Until when files that came back from the Trash are spared.
    QHash<QString, Instant> gracePaths;
    QHash<FileResource, Instant> graceFiles;
    std::shared_ptr<const AutoCleanCancellation> cancellation = std::make_shared<AutoCleanCancellation>();
};

} // namespace tembra
