#include "controls/ControlPainting.h"

#include "controls/DevicePixels.h"

#include <QPainter>
#include <QPolygonF>
#include <QWidget>

namespace tembra {

namespace {

constexpr qreal stroke = 1.6;

QPen roundPen(const QColor &color) {
    return {color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

QRectF controlBody(const QWidget &control) {
    return QRectF(control.rect()).marginsRemoved({ringMargin, ringMargin, ringMargin, ringMargin});
}

void drawField(QPainter &painter, const QRectF &body, qreal radius, const QColor &fill,
               const QColor &border) {
    const QRectF field = onDevicePixels(painter, body);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(field, radius, radius);
    if (border.alpha() == 0)
        return;
    painter.setPen(QPen(border, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(field.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

void drawChevron(QPainter &painter, const QPointF &center, const QColor &color) {
    painter.setPen(roundPen(color));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF{{center + QPointF(-3.5, -1.75), center + QPointF(0, 1.75), center + QPointF(3.5, -1.75)}});
}

void drawTick(QPainter &painter, const QRectF &field, const QColor &color) {
    const qreal side = field.width();
    const auto at = [&](qreal x, qreal y) { return field.topLeft() + QPointF(x, y) * side; };
    painter.setPen(roundPen(color));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{{at(0.27, 0.53), at(0.43, 0.69), at(0.74, 0.33)}});
}

} // namespace tembra
