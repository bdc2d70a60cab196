#include "windows/onboarding/OnboardingDot.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace tembra {

namespace {

constexpr int dotSize = 7;
constexpr int currentWidth = 20;
// The dot alone would be hard to meet.
constexpr int hitHeight = 21;

} // namespace

OnboardingDot::OnboardingDot(QWidget *parent) : PaintedButton(parent) {
    setCheckable(true);
    // Which one is current is not the button's to say.
    connect(this, &QAbstractButton::clicked, this, [this](bool isChecked) { setChecked(!isChecked); });
    connect(this, &QAbstractButton::toggled, this, &QWidget::updateGeometry);
}

QSize OnboardingDot::bodySize() const {
    return {(isChecked() ? currentWidth : dotSize) + 1, hitHeight};
}

PaintedButton::Outline OnboardingDot::paint(QPainter &painter, const Theme &theme) {
    QRectF dot(0, 0, isChecked() ? currentWidth : dotSize, dotSize);
    dot.moveCenter(controlBody(*this).center());
    // A step that lies ahead looks no different from one that lies behind.
    painter.setOpacity(1);
    const QColor other = isHovered() ? theme.secondaryText : theme.track;
    drawField(painter, dot, dotSize / 2.0, isChecked() ? theme.primary : other);
    return {dot, dotSize / 2.0};
}

void OnboardingDot::keyPressEvent(QKeyEvent *event) {
    if (!clickWithReturn(*event))
        PaintedButton::keyPressEvent(event);
}

} // namespace tembra
