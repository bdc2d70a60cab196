#pragma once

#include "base/Clocks.h"
#include "base/Error.h"
#include "screenshots/Shot.h"

#include <QSet>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace tembra {

// What a scan is asked for. A value.
struct FolderScanRequest {
    QString folder;
    bool includesSubfolders = false;
    // Stamps of files that the user removed from the shelf.
    QSet<QString> dismissed;
    Instant now{};
    // Set from any thread when nobody waits for the result any more.
    std::shared_ptr<const std::atomic<bool>> cancellation;
};

// What a scan found. A value.
struct FolderScanResult {
    // The folder could not be read; nothing else is told then.
    std::optional<Error> error;
    // Every whole capture, newest first.
    std::vector<Shot> shots;
    // Those of them that this scan met for the first time and that were made just now.
    std::vector<Shot> arrivals;
    // Captures that are still being written and may be whole at the next look.
    bool hasUnfinishedImages = false;
    bool hasUnfinishedVideos = false;
};

} // namespace tembra
