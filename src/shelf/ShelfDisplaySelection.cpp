#include "shelf/ShelfDisplaySelection.h"

#include <algorithm>

namespace tembra {

std::optional<ShelfDisplay> ShelfDisplaySelection::opening(const std::vector<ShelfDisplay> &displays,
                                                           DisplayPreference preference,
                                                           ScreenPoint pointer) {
    if (displays.empty())
        return std::nullopt;
    if (preference == DisplayPreference::main)
        return displays.front();
    const auto isAtNotch = [pointer](const ShelfDisplay &display) {
        return display.activationRect().widened(1 / std::max(display.scale, 1.0)).contains(pointer);
    };
    const auto isOnScreen = [pointer](const ShelfDisplay &display) {
        // Displays side by side share an edge, which belongs to the one that begins there.
        const ScreenRect &frame = display.screenFrame;
        return frame.contains(pointer) && pointer.x < frame.right() && pointer.y < frame.bottom();
    };
    auto found = std::ranges::find_if(displays, isAtNotch);
    if (found == displays.end())
        found = std::ranges::find_if(displays, isOnScreen);
    return found == displays.end() ? displays.front() : *found;
}

std::vector<ShelfDisplay> ShelfDisplaySelection::admitted(const std::vector<ShelfDisplay> &displays,
                                                          DisplayPreference preference) {
    if (preference == DisplayPreference::all || displays.empty())
        return displays;
    return {displays.front()};
}

} // namespace tembra
