#pragma once

#include "screenshots/ScreenshotDestination.h"

#include <QString>

#include <optional>

namespace tembra {

// What the screenshots tab can show: the grid when `ready`, else a message.
enum class ScreenshotFolderState { none, loading, ready, elsewhere, clipboard, other, missing };

// What the state follows from.
struct ScreenshotFolderFacts {
    // The granted folder; nothing when none is granted.
    std::optional<QString> folder;
    // The granted folder is gone or cannot be read.
    bool unavailable = false;
    // Where the screenshot tool saves; nothing before it was read for the first time.
    std::optional<ScreenshotDestination> destination;
    bool hasCompletedInitialScan = false;
};

[[nodiscard]] ScreenshotFolderState screenshotFolderState(const ScreenshotFolderFacts &facts);

// The word for the state in `tembra status`.
[[nodiscard]] QString statusName(ScreenshotFolderState state);

} // namespace tembra
