#include "controls/TembraLinkButton.h"

#include "controls/ControlPainting.h"
#include "controls/FocusRing.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QKeyEvent>
#include <QPainter>

namespace tembra {

TembraLinkButton::TembraLinkButton(const QString &title, QWidget *parent) : QAbstractButton(parent) {
    setText(title);
    setFont(typography::font(typography::bodySize));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TembraLinkButton::sizeHint() const {
    const QFontMetrics metrics(font());
    return QSize(metrics.horizontalAdvance(text()) + 4, metrics.height())
        .grownBy({ringMargin, ringMargin, ringMargin, ringMargin});
}

void TembraLinkButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme &theme = Theme::of(*this);
    if (!isEnabled() || isDown())
        painter.setOpacity(isDown() ? 0.7 : Theme::disabledOpacity);
    QFont titleFont = font();
    titleFont.setUnderline(underMouse() && isEnabled());
    painter.setFont(titleFont);
    painter.setPen(theme.link);
    const QRectF body = controlBody(*this);
    painter.drawText(body, Qt::AlignCenter, text());
    if (m_keyboardFocus.isShown())
        drawFocusRing(painter, body, 4, theme.focusRing);
}

void TembraLinkButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

} // namespace tembra
