#pragma once

#include <QPointF>

#include <cmath>

namespace tembra {

// A position in image space: pixels of the original image, upright, origin at its top left.
struct EditorPoint {
    double x = 0;
    double y = 0;

    [[nodiscard]] static EditorPoint from(QPointF point) { return {point.x(), point.y()}; }
    [[nodiscard]] QPointF toPointF() const { return {x, y}; }
    [[nodiscard]] bool isFinite() const { return std::isfinite(x) && std::isfinite(y); }

    bool operator==(const EditorPoint &) const = default;
};

} // namespace tembra
