#pragma once

#include "screenshots/ScreenshotSection.h"

#include <QSet>
#include <QString>

#include <vector>

namespace tembra {

// What the grid shows. A value.
struct ScreenshotGridState {
    // In display order.
    std::vector<ScreenshotSection> sections;
    // Locations of the shots that carry the pin's badge.
    QSet<QString> pinnedPaths;
    bool showFileNames = true;
    // Under the sections' titles; otherwise the sections follow each other in one run without titles.
    bool grouped = false;

    bool operator==(const ScreenshotGridState &) const = default;

    [[nodiscard]] int count() const;
    // The shot at a place in the run of all sections.
    [[nodiscard]] const Shot &at(int index) const;
};

} // namespace tembra
