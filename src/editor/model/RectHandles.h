#pragma once

#include <QPointF>
#include <QRectF>

// The eight handles of a rectangle, numbered clockwise: 0 top left, 1 top, 2 top right, 3 right, 4 bottom
// right, 5 bottom, 6 bottom left, 7 left.
namespace tembra::rectHandles {

inline constexpr int count = 8;

[[nodiscard]] QPointF position(const QRectF &rect, int handle);

// The rectangle, as it was when the drag began, with a handle moved to a point. Dragged past the opposite
// side it turns over; it stays at least a pixel wide and high and within `limits`, if they allow. With
// `preservingAspect` a corner scales it from the opposite corner, an edge from the middle of the opposite
// edge.
[[nodiscard]] QRectF resized(const QRectF &rect, int handle, QPointF point, bool preservingAspect,
                             const QRectF &limits);

} // namespace tembra::rectHandles
