#include "controls/TembraButton.h"

#include "controls/FocusRing.h"
#include "controls/Palette.h"
#include "controls/Typography.h"

#include <QKeyEvent>
#include <QPainter>

namespace tembra {

namespace {

constexpr int buttonHeight = 30;
constexpr int sideMargin = 14;
constexpr qreal radius = 8;
// Room for the focus ring around the button itself.
constexpr int ringMargin = 3;

} // namespace

TembraButton::TembraButton(Kind kind, QWidget *parent) : QAbstractButton(parent), m_kind(kind) {
    setFont(typography::font(typography::bodySize, QFont::DemiBold));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TembraButton::sizeHint() const {
    const int width = QFontMetrics(font()).horizontalAdvance(text()) + 2 * sideMargin;
    return QSize(width, buttonHeight).grownBy({ringMargin, ringMargin, ringMargin, ringMargin});
}

QColor TembraButton::fill() const {
    const bool isPrimary = m_kind == Kind::primary;
    if (isDown())
        return isPrimary ? palette::buttonPressed : palette::group;
    if (underMouse() && isEnabled())
        return isPrimary ? palette::buttonHovered : palette::plainButtonHovered;
    return isPrimary ? palette::button : palette::groupActive;
}

void TembraButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(0.4);
    const QRectF body = QRectF(rect()).marginsRemoved({ringMargin, ringMargin, ringMargin, ringMargin});
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill());
    painter.drawRoundedRect(body, radius, radius);
    painter.setPen(m_kind == Kind::primary ? palette::onButton : palette::text);
    painter.drawText(body, Qt::AlignCenter, text());
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange))
        drawFocusRing(painter, body, radius);
}

void TembraButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

} // namespace tembra
