#include "controls/TembraCheckbox.h"

#include "controls/ControlPainting.h"
#include "controls/FocusRing.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QPainter>
#include <QStyle>

namespace tembra {

namespace {

constexpr int boxSide = 16;
constexpr int gap = 8;
constexpr qreal radius = 4;

} // namespace

TembraCheckbox::TembraCheckbox(const QString &title, QWidget *parent) : QAbstractButton(parent) {
    setText(title);
    setCheckable(true);
    setFont(typography::font(typography::bodySize));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TembraCheckbox::sizeHint() const {
    const QFontMetrics metrics(font());
    const int width = boxSide + gap + metrics.horizontalAdvance(text());
    return QSize(width, std::max(boxSide, metrics.height()))
        .grownBy({ringMargin, ringMargin, ringMargin, ringMargin});
}

void TembraCheckbox::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(Theme::disabledOpacity);
    const Theme &theme = Theme::of(*this);
    const bool isHovered = underMouse() && isEnabled();
    const QRect body = rect().marginsRemoved({ringMargin, ringMargin, ringMargin, ringMargin});
    const QRect box =
        QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, {boxSide, boxSide}, body);
    if (isChecked()) {
        drawField(painter, box, radius,
                  isDown()    ? theme.accentPressed
                  : isHovered ? theme.accentHovered
                              : theme.accent);
        drawTick(painter, box, theme.onAccent);
    } else {
        drawField(painter, box, radius, isDown() ? theme.controlPressed : theme.field,
                  isHovered ? theme.secondaryText : theme.track);
    }
    const QRect title = QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter,
                                            {body.width() - boxSide - gap, body.height()}, body);
    painter.setPen(theme.text);
    painter.drawText(title, QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter,
                     text());
    if (m_keyboardFocus.isShown())
        drawFocusRing(painter, box, radius, theme.focusRing);
}

} // namespace tembra
