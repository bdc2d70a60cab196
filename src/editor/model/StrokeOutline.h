#pragma once

#include <QPainterPath>
#include <QPointF>

#include <span>

namespace tembra {

// A place on the middle of a stroke, and how far the stroke reaches from there.
struct StrokePoint {
    QPointF position;
    double radius = 0;
};

// The outline of a stroke of changing width with round ends and joins. Filled by nonzero winding it has no
// holes, however the stroke turns and crosses itself. Image space.
[[nodiscard]] QPainterPath strokeOutline(std::span<const StrokePoint> points);

} // namespace tembra
