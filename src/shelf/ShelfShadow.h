#pragma once

#include <QPixmap>

class QPainter;
class QRectF;

namespace tembra {

// The soft shadow below the panel. Main thread.
class ShelfShadow {
public:
    // How far it reaches beyond the panel's sides and bottom, in points.
    static constexpr int reach = 56;
    // How much lower than the panel it lies: light comes from above.
    static constexpr int drop = 12;

    // Draws the shadow of a panel with this body, which is to be painted over it.
    void draw(QPainter &painter, const QRectF &body);

private:
    void render(qreal scale);

    // The shadow of a small panel; its middle row and column are stretched for a larger one.
    QPixmap m_patch;
};

} // namespace tembra
