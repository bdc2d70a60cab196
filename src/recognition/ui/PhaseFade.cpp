#include "recognition/ui/PhaseFade.h"

#include "controls/Motion.h"

#include <QPainter>

namespace tembra {

PhaseFade::PhaseFade(QWidget &view) : QWidget(view.parentWidget()), m_picture(view.grab()) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(view.geometry());
    m_opacity.setStartValue(1.0);
    m_opacity.setEndValue(0.0);
    m_opacity.setDuration(static_cast<int>(motion::fade.count()));
    connect(&m_opacity, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_opacity, &QVariantAnimation::finished, this, &QObject::deleteLater);
    show();
    m_opacity.start();
}

void PhaseFade::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setOpacity(m_opacity.currentValue().toReal());
    painter.drawPixmap(0, 0, m_picture);
}

} // namespace tembra
