#pragma once

#include <QLineF>
#include <QPainterPath>
#include <QRectF>

// The outlines of lines, rectangles and ellipses, to be filled by nonzero winding. A line lies along the
// middle of its width; that of a shape runs along the edge of the rectangle. Image space.
namespace tembra::shapeOutline {

[[nodiscard]] QPainterPath line(const QLineF &line, double width);
[[nodiscard]] QPainterPath outlinedRectangle(const QRectF &rect, double width);
// Fills the rectangle but for its corners, whose radius follows the width.
[[nodiscard]] QPainterPath filledRectangle(const QRectF &rect, double width);
[[nodiscard]] QPainterPath outlinedEllipse(const QRectF &rect, double width);
[[nodiscard]] QPainterPath filledEllipse(const QRectF &rect);

} // namespace tembra::shapeOutline
