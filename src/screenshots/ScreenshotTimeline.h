#pragma once

#include "screenshots/ScreenshotSection.h"

#include <QSet>
#include <QString>
#include <QTimeZone>

#include <vector>

namespace tembra {

// Puts shots under the headings that the grid shows.
struct ScreenshotTimeline {
    // Sections in their order, newest shot first, without empty ones. A pinned shot, by its location, is in
    // "Pinned" whatever its date. Days are those of the calendar in `zone`; "Last 7 Days" are the five before
    // yesterday.
    [[nodiscard]] static std::vector<ScreenshotSection> sections(const std::vector<Shot> &shots,
                                                                 const QSet<QString> &pinnedPaths,
                                                                 Instant now, const QTimeZone &zone);

    // The display order within a section, for any number of shots.
    [[nodiscard]] static bool isShownBefore(const Shot &a, const Shot &b);
};

} // namespace tembra
