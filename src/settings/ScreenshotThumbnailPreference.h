#pragma once

#include "base/Result.h"

#include <functional>
#include <optional>

namespace tembra {

class ScreenCapturePreferences;

// Reads and writes whether the screenshot tool shows a floating thumbnail of a new capture; nothing means the
// tool's default.
struct ScreenshotThumbnailPreference {
    std::function<std::optional<bool>()> read;
    std::function<Result<void>(std::optional<bool>)> write;

    // That of the desktop's own tool, which must outlive the functions.
    [[nodiscard]] static ScreenshotThumbnailPreference system(ScreenCapturePreferences &preferences);
};

} // namespace tembra
