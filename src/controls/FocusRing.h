#pragma once

#include <QColor>

class QPainter;
class QRectF;

namespace tembra {

// The ring around the control that the keyboard acts on, just outside its rounded body, in the shelf's
// colour.
void drawFocusRing(QPainter &painter, const QRectF &body, double radius);
void drawFocusRing(QPainter &painter, const QRectF &body, double radius, const QColor &color);

} // namespace tembra
