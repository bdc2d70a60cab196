#include "shelf/HoverSnapshot.h"

#include <algorithm>

namespace tembra {

double HoverSnapshot::tolerance() const {
    return 1 / std::max(scale, 1.0);
}

bool HoverSnapshot::contains(ScreenPoint point, const ScreenRect &rect) const {
    return rect.widened(tolerance()).contains(point);
}

bool HoverSnapshot::isWithinReach(ScreenPoint point, double reach) const {
    if (activationNotches.empty())
        return notch.widened(reach).contains(point);
    return std::ranges::any_of(activationNotches, [point, reach](const ScreenRect &area) {
        return area.widened(reach).contains(point);
    });
}

bool HoverSnapshot::isInActivationArea(ScreenPoint point) const {
    return isWithinReach(point, tolerance());
}

bool HoverSnapshot::isNearActivationArea(ScreenPoint point) const {
    constexpr double reach = 24;
    return isWithinReach(point, reach);
}

bool HoverSnapshot::containsPanel(ScreenPoint point, const ScreenRect &rect) const {
    return contains(point, rect) && (!panelWindow || panelWindow->contains(point));
}

bool HoverSnapshot::keepsOpen(ScreenPoint point) const {
    return contains(point, notch) || containsPanel(point, interactionPanel);
}

} // namespace tembra
