#pragma once

#include "screenshots/Shot.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>
#include <vector>

namespace tembra {

// One watched folder as the shelf shows it. Owned by the session, filled by the watcher, main thread.
struct FolderShelf {
    // The watcher has finished its first full scan of the folder.
    bool hasCompletedInitialScan = false;
    std::optional<QString> url;
    // In display order.
    std::vector<Shot> shots;
    // Stamps of the previous scan by path.
    QHash<QString, QString> previous;
    // Stamps seen by the first scan: what was there before the watcher is not new.
    std::optional<QSet<QString>> initialStamps;
    // Set when the folder cannot be read; shown in place of the shots.
    std::optional<QString> errorText;
};

} // namespace tembra
