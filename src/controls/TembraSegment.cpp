#include "controls/TembraSegment.h"

#include "controls/FocusRing.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QPainter>

namespace tembra {

TembraSegment::TembraSegment(const QString &title, QWidget *parent) : QAbstractButton(parent) {
    setText(title);
    setCheckable(true);
    setAutoExclusive(true);
    setFont(typography::font(typography::itemSize));
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::ClickFocus);
}

QSize TembraSegment::sizeHint() const {
    constexpr int sideMargin = 13;
    constexpr int height = 23;
    return {QFontMetrics(font()).horizontalAdvance(text()) + 2 * sideMargin, height};
}

void TembraSegment::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(Theme::disabledOpacity);
    const Theme &theme = Theme::of(*this);
    const bool stands = isChecked() || ((underMouse() || isDown()) && isEnabled());
    painter.setPen(stands ? theme.text : theme.secondaryText);
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (m_keyboardFocus.isShown())
        drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), radius - 2, theme.focusRing);
}

} // namespace tembra
