#include "controls/TembraTextField.h"

#include "controls/ControlPainting.h"
#include "controls/FocusRing.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QPainter>

namespace tembra {

namespace {

constexpr qreal radius = 7;
constexpr int textMargin = ringMargin + 7;

} // namespace

TembraTextField::TembraTextField(QWidget *parent) : QLineEdit(parent) {
    setFont(typography::font(typography::bodySize));
    setFrame(false);
    setTextMargins(textMargin, 0, textMargin, 0);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TembraTextField::setInvalid(bool isInvalid) {
    if (isInvalid == m_isInvalid)
        return;
    m_isInvalid = isInvalid;
    update();
}

void TembraTextField::showEvent(QShowEvent *event) {
    // Only the text is left to the style; the field below it is ours.
    QPalette clear = palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    setPalette(clear);
    QLineEdit::showEvent(event);
}

void TembraTextField::paintEvent(QPaintEvent *event) {
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (!isEnabled())
            painter.setOpacity(Theme::disabledOpacity);
        const Theme &theme = Theme::of(*this);
        const QRectF body = controlBody(*this);
        const bool isHovered = underMouse() && isEnabled() && !isReadOnly();
        drawField(painter, body, radius, theme.field,
                  m_isInvalid ? theme.invalid
                  : isHovered ? theme.secondaryText
                              : theme.fieldBorder);
        // Where text goes is shown however the focus came.
        if (hasFocus())
            drawFocusRing(painter, body, radius, m_isInvalid ? theme.invalid : theme.focusRing);
    }
    QLineEdit::paintEvent(event);
}

} // namespace tembra
