#pragma once

#include <QColor>

namespace tembra {

// A colour in sRGB, every component from 0 to 1, alpha not multiplied in.
struct EditorColor {
    double r = 0;
    double g = 0;
    double b = 0;
    double a = 0;

    // Red, as systems warn with it, where the colour says nothing.
    [[nodiscard]] static EditorColor from(const QColor &color);
    [[nodiscard]] QColor toColor() const;
    // Every component is finite and from 0 to 1.
    [[nodiscard]] bool isValid() const;

    bool operator==(const EditorColor &) const = default;
};

} // namespace tembra
