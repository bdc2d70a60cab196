#include "shelf/RubberBand.h"

#include "controls/Palette.h"

#include <QPainter>

namespace tembra {

RubberBand::RubberBand(QWidget *parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void RubberBand::begin(QPoint origin, const QSet<FileTileID> &base) {
    m_isActive = true;
    m_origin = origin;
    m_base = base;
}

void RubberBand::stretchTo(QPoint point) {
    setGeometry(QRect(m_origin, point).normalized());
    raise();
    show();
}

void RubberBand::end() {
    m_isActive = false;
    hide();
}

void RubberBand::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setPen(palette::accent);
    painter.setBrush(palette::selection);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace tembra
