#include "shelf/ShelfDisplay.h"

namespace tembra {

namespace {

constexpr double virtualNotchWidth = 192;
constexpr double virtualNotchHeight = 12;

// Between the free areas beside the camera housing, as high as the inset of the safe area.
std::optional<ScreenRect> notchOf(const DisplayFacts &facts) {
    if (facts.safeAreaTop <= 0 || !facts.auxiliaryTopLeft || !facts.auxiliaryTopRight)
        return std::nullopt;
    const double left = facts.auxiliaryTopLeft->right();
    return ScreenRect{left, facts.frame.y, facts.auxiliaryTopRight->x - left, facts.safeAreaTop};
}

} // namespace

ShelfDisplay ShelfDisplay::of(const DisplayFacts &facts) {
    return {.identifier = facts.identifier,
            .name = facts.name,
            .screenFrame = facts.frame,
            .physicalNotch = notchOf(facts),
            .scale = facts.scale,
            .availableHeight = facts.availableHeight};
}

std::vector<ShelfDisplay> ShelfDisplay::connected(const Displays &displays) {
    std::vector<ShelfDisplay> list;
    for (const DisplayFacts &facts : displays.connected())
        list.push_back(of(facts));
    return list;
}

ScreenRect ShelfDisplay::activationRect() const {
    return physicalNotch.value_or(ScreenRect{screenFrame.midX() - virtualNotchWidth / 2, screenFrame.y,
                                             virtualNotchWidth, virtualNotchHeight});
}

} // namespace tembra
