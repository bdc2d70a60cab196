#include "controls/LoadingIndicator.h"

#include "controls/Motion.h"
#include "controls/Theme.h"

#include <QPainter>

namespace tembra {

LoadingIndicator::LoadingIndicator(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Loading"));
    m_turn.setStartValue(0.0);
    m_turn.setEndValue(360.0);
    m_turn.setDuration(900);
    m_turn.setLoopCount(-1);
    connect(&m_turn, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_turn, &QVariantAnimation::currentLoopChanged, this, [this] {
        if (motion::isReduced(*this))
            m_turn.stop();
    });
}

void LoadingIndicator::paintEvent(QPaintEvent *) {
    constexpr qreal thickness = 2;
    constexpr int sixteenths = 16;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF(rect()).adjusted(thickness, thickness, -thickness, -thickness);
    QColor whole = Theme::of(*this).track;
    whole.setAlphaF(0.45F);
    painter.setPen(QPen(whole, thickness));
    painter.drawEllipse(ring);
    const double angle = m_turn.currentValue().toDouble();
    painter.setPen(QPen(Theme::of(*this).secondaryText, thickness, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, static_cast<int>((90 - angle) * sixteenths), -100 * sixteenths);
}

void LoadingIndicator::showEvent(QShowEvent *) {
    if (!motion::isReduced(*this))
        m_turn.start();
}

void LoadingIndicator::hideEvent(QHideEvent *) {
    m_turn.stop();
}

} // namespace tembra
