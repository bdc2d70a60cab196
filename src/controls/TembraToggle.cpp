#include "controls/TembraToggle.h"

#include "controls/ControlPainting.h"
#include "controls/DevicePixels.h"
#include "controls/Motion.h"
#include "controls/Theme.h"

#include <QPainter>

namespace tembra {

namespace {

constexpr QSize trackSize{38, 22};
constexpr qreal knobInset = 2;

QColor between(const QColor &off, const QColor &on, qreal share) {
    const auto mixed = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mixed(off.red(), on.red()), mixed(off.green(), on.green()), mixed(off.blue(), on.blue())};
}

} // namespace

TembraToggle::TembraToggle(QWidget *parent) : PaintedButton(parent) {
    setCheckable(true);
    m_position.setStartValue(0.0);
    m_position.setEndValue(0.0);
    connect(&m_position, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(this, &QAbstractButton::toggled, this,
            [this](bool isOn) { motion::animateTo(m_position, isOn ? 1 : 0, *this); });
}

QSize TembraToggle::bodySize() const {
    return trackSize;
}

PaintedButton::Outline TembraToggle::paint(QPainter &painter, const Theme &theme) {
    QRectF body{QPointF(), QSizeF(trackSize)};
    body.moveCenter(QRectF(rect()).center());
    const qreal radius = body.height() / 2;
    const qreal position = m_position.currentValue().toReal();
    drawField(painter, body, radius,
              between(isHovered() ? theme.trackHovered : theme.track,
                      isHovered() ? theme.accentHovered : theme.accent, position));

    const qreal side = body.height() - 2 * knobInset;
    // The knob grows towards the middle while it is held.
    const qreal stretch = isDown() ? 3 : 0;
    const qreal travel = body.width() - 2 * knobInset - side - stretch;
    const qreal x = layoutDirection() == Qt::RightToLeft ? 1 - position : position;
    const QRectF knob(body.left() + knobInset + x * travel, body.top() + knobInset, side + stretch, side);
    drawField(painter, knob, side / 2, theme.knob);
    return {body, radius};
}

} // namespace tembra
