#pragma once

#include <QLineF>
#include <QPainterPath>
#include <QRectF>

// The outlines of lines, rectangles and ellipses, to be filled by nonzero winding. A line lies along the
// middle of its width; that of a shape runs along the edge of the rectangle. `growth` is how far the outline
// lies outside, on every side. Image space.
namespace tembra::shapeOutline {

[[nodiscard]] QPainterPath line(const QLineF &line, double width, double growth);
[[nodiscard]] QPainterPath outlinedRectangle(const QRectF &rect, double width, double growth);
// Fills the rectangle but for its corners, whose radius follows the width.
[[nodiscard]] QPainterPath filledRectangle(const QRectF &rect, double width, double growth);
[[nodiscard]] QPainterPath outlinedEllipse(const QRectF &rect, double width, double growth);
[[nodiscard]] QPainterPath filledEllipse(const QRectF &rect, double growth);

} // namespace tembra::shapeOutline
