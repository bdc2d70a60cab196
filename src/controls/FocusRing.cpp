#include "controls/FocusRing.h"

#include "controls/Palette.h"

#include <QPainter>

namespace tembra {

void drawFocusRing(QPainter &painter, const QRectF &body, double radius) {
    drawFocusRing(painter, body, radius, palette::focusRing);
}

void drawFocusRing(QPainter &painter, const QRectF &body, double radius, const QColor &color) {
    constexpr qreal gap = 1.5;
    constexpr qreal thickness = 2;
    painter.setPen(QPen(color, thickness));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(body.adjusted(-gap, -gap, gap, gap), radius + gap, radius + gap);
}

} // namespace tembra
