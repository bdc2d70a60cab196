#pragma once

#include "screenshots/Shot.h"

#include <QString>

#include <vector>

namespace tembra {

// In the order in which sections are shown.
enum class ScreenshotSectionKind { pinned, today, yesterday, recent, older };

// "Pinned", "Today", "Yesterday", "Last 7 Days", "Older".
[[nodiscard]] QString title(ScreenshotSectionKind kind);

struct ScreenshotSection {
    ScreenshotSectionKind kind = ScreenshotSectionKind::today;
    std::vector<Shot> shots;

    bool operator==(const ScreenshotSection &) const = default;
};

} // namespace tembra
