#pragma once

#include "platform/ScreenGeometry.h"
#include "settings/ActivationMode.h"

#include <optional>
#include <vector>

namespace tembra {

// What the shelf looks like at one moment, as far as the pointer's meaning depends on it. A value made afresh
// for each decision; screen points.
struct HoverSnapshot {
    ActivationMode activationMode = ActivationMode::hover;
    // The shelf is open.
    bool expanded = false;
    // The shelf shows its small form, a notification.
    bool compact = false;
    bool choosingFolder = false;
    bool previewOpen = false;
    // The collapsed tab.
    ScreenRect notch;
    // Where the open panel keeps itself open.
    ScreenRect interactionPanel;
    // What can be seen of the panel.
    ScreenRect visiblePanel;
    // Device pixels per point.
    double scale = 1;
    // Every area that opens the shelf, one for each display where it lives.
    std::vector<ScreenRect> activationNotches;
    // The frame of the panel's window; nothing when there is no further limit.
    std::optional<ScreenRect> panelWindow;

    // All tests widen the rectangle by one device pixel; an empty one contains nothing.
    [[nodiscard]] bool contains(ScreenPoint point, const ScreenRect &rect) const;
    [[nodiscard]] bool isInActivationArea(ScreenPoint point) const;
    // So near to such an area that what is dragged there is meant for the shelf.
    [[nodiscard]] bool isNearActivationArea(ScreenPoint point) const;
    [[nodiscard]] bool containsPanel(ScreenPoint point, const ScreenRect &rect) const;
    [[nodiscard]] bool keepsOpen(ScreenPoint point) const;

private:
    [[nodiscard]] double tolerance() const;
    [[nodiscard]] bool isWithinReach(ScreenPoint point, double reach) const;
};

} // namespace tembra
