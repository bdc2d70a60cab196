#pragma once

#include "base/Clocks.h"
#include "screenshots/Shot.h"

#include <QString>

#include <optional>

namespace tembra {

// What was known of a screenshot before the editor wrote it. A value.
struct EditorSaveContext {
    Shot shot;
    // Where the file was: absolute and clean.
    QString path;
    // Where it belongs.
    QString folder;
    // Where the settings know it to be pinned; nothing when it is not.
    std::optional<QString> pinnedPath;
    std::optional<Instant> createdAt;

    // What is found where the editor wrote.
    struct Written {
        QString path;
        ScreenshotFileIdentity identity;
        std::optional<Instant> createdAt;
        // The file of the context still stands at its old path.
        bool oldFileStands = false;
    };

    // Whether the written file took the screenshot's place: saved in place, renamed, or saved under another
    // name with the old file gone. A copy beside it does not.
    [[nodiscard]] bool isReplacedBy(const Written &written) const;
};

} // namespace tembra
