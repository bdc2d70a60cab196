#pragma once

namespace tembra {

// Global screen space: points (device-independent pixels), x to the right, y down, one space for all
// displays; its origin is where the platform has it, with one display the top left of it.
struct ScreenPoint {
    double x = 0;
    double y = 0;

    bool operator==(const ScreenPoint &) const = default;
};

struct ScreenRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] double right() const { return x + width; }
    [[nodiscard]] double bottom() const { return y + height; }
    [[nodiscard]] double midX() const { return x + width / 2; }
    [[nodiscard]] bool isEmpty() const { return width <= 0 || height <= 0; }
    // Edges belong to the rectangle; an empty rectangle contains nothing.
    [[nodiscard]] bool contains(ScreenPoint p) const {
        return !isEmpty() && p.x >= x && p.x <= right() && p.y >= y && p.y <= bottom();
    }
    // Each edge moved outwards by `margin`; an empty rectangle stays as it is.
    [[nodiscard]] ScreenRect widened(double margin) const {
        return isEmpty() ? *this
                         : ScreenRect{x - margin, y - margin, width + 2 * margin, height + 2 * margin};
    }

    bool operator==(const ScreenRect &) const = default;
};

} // namespace tembra
