#pragma once

#include "screenshots/Shot.h"

#include <QString>

#include <optional>
#include <vector>

namespace tembra {

// One watched folder as the shelf shows it. Owned by the session, filled by the watcher, main thread.
struct FolderShelf {
    // The watcher has finished its first full scan of the folder: what comes from now on is new.
    bool hasCompletedInitialScan = false;
    std::optional<QString> url;
    // In display order, newest first.
    std::vector<Shot> shots;
    // Set when the folder cannot be read; shown in place of the shots.
    std::optional<QString> errorText;
};

} // namespace tembra
