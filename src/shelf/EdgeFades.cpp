#include "shelf/EdgeFades.h"

#include "controls/Palette.h"

#include <QLinearGradient>
#include <QPainter>

namespace tembra {

namespace {

void fade(QPainter &painter, const QRectF &rectangle, qreal strongAt, qreal clearAt, qreal opacity) {
    if (opacity <= 0)
        return;
    QColor strong = palette::panel;
    strong.setAlphaF(static_cast<float>(opacity));
    QColor clear = palette::panel;
    clear.setAlpha(0);
    QLinearGradient gradient(0, strongAt, 0, clearAt);
    gradient.setColorAt(0, strong);
    gradient.setColorAt(1, clear);
    painter.fillRect(rectangle, gradient);
}

} // namespace

EdgeFades::EdgeFades(QWidget *parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void EdgeFades::setOpacities(qreal top, qreal bottom) {
    if (m_top == top && m_bottom == bottom)
        return;
    m_top = top;
    m_bottom = bottom;
    update();
}

void EdgeFades::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    // Only on what is there: the panel's round corners stay round.
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    fade(painter, QRectF(0, 0, width(), topHeight), 0, topHeight, m_top);
    fade(painter, QRectF(0, height() - bottomHeight, width(), bottomHeight), height(),
         height() - bottomHeight, m_bottom);
}

} // namespace tembra
