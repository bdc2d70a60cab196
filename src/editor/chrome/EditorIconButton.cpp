#include "editor/chrome/EditorIconButton.h"

#include "controls/ControlPainting.h"
#include "controls/TembraToolTip.h"
#include "controls/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace tembra {

namespace {

constexpr qreal iconSide = 16;

} // namespace

EditorIconButton::EditorIconButton(Icon icon, Size size, const QString &name, QWidget *parent)
    : PaintedButton(parent), m_icon(icon), m_size(size) {
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    TembraToolTip::set(*this, name);
}

QSize EditorIconButton::bodySize() const {
    return m_size == Size::tool ? QSize(38, 38) : QSize(28, 28);
}

PaintedButton::Outline EditorIconButton::paint(QPainter &painter, const Theme &theme) {
    const QRectF body = controlBody(*this);
    const qreal radius = m_size == Size::tool ? 10 : 8;
    const bool isLit = isChecked();
    if (isLit)
        drawField(painter, body, radius,
                  isDown()      ? theme.accentPressed
                  : isHovered() ? theme.accentHovered
                                : theme.accent);
    else if (isDown() || isHovered())
        drawField(painter, body, radius, isDown() ? theme.controlPressed : theme.controlHovered);
    drawIcon(painter, m_icon, body, iconSide,
             isLit         ? theme.onAccent
             : isHovered() ? theme.text
                           : theme.dockIcon);
    return {body, radius};
}

void EditorIconButton::keyPressEvent(QKeyEvent *event) {
    if (!clickWithReturn(*event))
        PaintedButton::keyPressEvent(event);
}

void EditorIconButton::wheelEvent(QWheelEvent *event) {
    event->accept();
    if (const int steps = m_wheel.take(*event))
        Q_EMIT scrolled(steps);
}

} // namespace tembra
