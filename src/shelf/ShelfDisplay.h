#pragma once

#include "platform/Displays.h"
#include "platform/ScreenGeometry.h"

#include <QString>

#include <optional>
#include <vector>

namespace tembra {

// A connected display as the shelf sees it. Screen points, y down.
struct ShelfDisplay {
    std::uint32_t identifier = 0;
    QString name;
    ScreenRect screenFrame;
    // The camera housing; absent on displays without one.
    std::optional<ScreenRect> physicalNotch;
    double scale = 1;
    // Without what the desktop's own panels reserve.
    double availableHeight = 0;

    [[nodiscard]] static ShelfDisplay of(const DisplayFacts &facts);
    // In the order of the platform's list, the main display first.
    [[nodiscard]] static std::vector<ShelfDisplay> connected(const Displays &displays);

    // What opens the shelf: the physical notch, else a virtual one of 192 × 12 points in the middle of the
    // top edge.
    [[nodiscard]] ScreenRect activationRect() const;

    bool operator==(const ShelfDisplay &) const = default;
};

} // namespace tembra
