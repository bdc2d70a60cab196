#include "shelf/ShelfView.h"

#include "controls/Palette.h"
#include "shelf/ShelfPanelShape.h"

#include <QPainter>

namespace tembra {

ShelfView::ShelfView(QWidget *parent) : QWidget(parent) {
    setMouseTracking(true);
}

void ShelfView::setBody(const QRectF &body, bool castsShadow) {
    if (m_body == body && m_castsShadow == castsShadow)
        return;
    m_body = body;
    m_castsShadow = castsShadow;
    update();
}

void ShelfView::paintEvent(QPaintEvent *) {
    if (m_body.height() <= 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_castsShadow)
        m_shadow.draw(painter, m_body);
    painter.fillPath(ShelfPanelShape::path(m_body), palette::panel);
}

void ShelfView::enterEvent(QEnterEvent *) {
    onPointerActivity();
}

void ShelfView::leaveEvent(QEvent *) {
    onPointerActivity();
}

// Only in the narrow band beside the body, which is not covered by views.
void ShelfView::mouseMoveEvent(QMouseEvent *) {
    onPointerActivity();
}

} // namespace tembra
