#pragma once

class QPainter;
class QRectF;

namespace tembra {

// The ring around the control that the keyboard acts on, just outside its rounded body.
void drawFocusRing(QPainter &painter, const QRectF &body, double radius);

} // namespace tembra
