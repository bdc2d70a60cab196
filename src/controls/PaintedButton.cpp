#include "controls/PaintedButton.h"

#include "controls/ControlPainting.h"
#include "controls/FocusRing.h"
#include "controls/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace tembra {

PaintedButton::PaintedButton(QWidget *parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize PaintedButton::sizeHint() const {
    return bodySize().grownBy({ringMargin, ringMargin, ringMargin, ringMargin});
}

void PaintedButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(Theme::disabledOpacity);
    const Theme &theme = Theme::of(*this);
    const Outline outline = paint(painter, theme);
    if (m_keyboardFocus.isShown())
        drawFocusRing(painter, outline.body, outline.radius, theme.focusRing);
}

bool PaintedButton::clickWithReturn(const QKeyEvent &event) {
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (isReturn)
        click();
    return isReturn;
}

} // namespace tembra
