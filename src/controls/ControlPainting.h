#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QWidget;

// What the painting of all controls has in common.
namespace tembra {

// Room around a control's body for its focus ring.
inline constexpr int ringMargin = 3;

// The control without the room for its ring.
[[nodiscard]] QRectF controlBody(const QWidget &control);
// A rounded field with edges on device pixels and, unless the border is transparent, a line of one point
// inside its edge.
void drawField(QPainter &painter, const QRectF &body, qreal radius, const QColor &fill,
               const QColor &border = Qt::transparent);
// A chevron pointing down, centred on the point.
void drawChevron(QPainter &painter, const QPointF &center, const QColor &color);
// A tick in a square field.
void drawTick(QPainter &painter, const QRectF &field, const QColor &color);

} // namespace tembra
