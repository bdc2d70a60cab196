#include "controls/Motion.h"

#include <QStyle>
#include <QVariantAnimation>
#include <QWidget>

#include <utility>

namespace tembra::motion {

namespace {

std::function<bool()> &desktop() {
    static std::function<bool()> isReduced;
    return isReduced;
}

} // namespace

void askDesktop(std::function<bool()> isReduced) {
    desktop() = std::move(isReduced);
}

bool isReduced(const QWidget &widget) {
    if (desktop() && desktop()())
        return true;
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) <= 0;
}

void animateTo(QVariantAnimation &animation, qreal target, const QWidget &widget) {
    const qreal from = animation.currentValue().toReal();
    animation.stop();
    const bool moves = widget.isVisible() && !isReduced(widget);
    animation.setDuration(static_cast<int>(control.count()));
    animation.setEasingCurve(QEasingCurve::OutCubic);
    animation.setStartValue(moves ? from : target);
    animation.setEndValue(target);
    if (moves)
        animation.start();
    else
        animation.setCurrentTime(animation.duration());
}

} // namespace tembra::motion
