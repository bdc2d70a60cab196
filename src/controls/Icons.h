#pragma once

#include <QColor>
#include <QPixmap>

class QPainter;
class QRectF;

namespace tembra {

// The program's own drawings, made on a field of 16 points.
enum class Icon {
    arrow,
    blur,
    close,
    crop,
    cursor,
    document,
    dragOut,
    ellipse,
    fill,
    film,
    folder,
    gear,
    info,
    line,
    more,
    number,
    pencil,
    photo,
    pin,
    rectangle,
    statusBar,
    text,
    textBackground,
    textViewfinder,
    warning
};

// The icon in one colour, rendered for the exact number of device pixels; kept by size, scale and colour.
// Main thread.
[[nodiscard]] QPixmap iconPixmap(Icon icon, qreal side, qreal scale, const QColor &color);

// Draws the icon centred in the rectangle, on whole device pixels.
void drawIcon(QPainter &painter, Icon icon, const QRectF &rectangle, qreal side, const QColor &color);

} // namespace tembra
