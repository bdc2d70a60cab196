#include "shelf/HoverSnapshot.h"

#include <algorithm>

namespace tembra {

bool HoverSnapshot::contains(ScreenPoint point, const ScreenRect &rect) const {
    return rect.widened(1 / std::max(scale, 1.0)).contains(point);
}

bool HoverSnapshot::isInActivationArea(ScreenPoint point) const {
    if (activationNotches.empty())
        return contains(point, notch);
    return std::ranges::any_of(activationNotches,
                               [&](const ScreenRect &area) { return contains(point, area); });
}

bool HoverSnapshot::containsPanel(ScreenPoint point, const ScreenRect &rect) const {
    return contains(point, rect) && (!panelWindow || panelWindow->contains(point));
}

bool HoverSnapshot::keepsOpen(ScreenPoint point) const {
    return contains(point, notch) || containsPanel(point, interactionPanel);
}

} // namespace tembra
