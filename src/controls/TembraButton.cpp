#include "controls/TembraButton.h"

#include "controls/ControlPainting.h"
#include "controls/FocusRing.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QKeyEvent>
#include <QPainter>

namespace tembra {

namespace {

struct Measures {
    int height;
    int sideMargin;
    qreal radius;
    int fontSize;
};

Measures measures(TembraButton::Size size) {
    switch (size) {
    case TembraButton::Size::compact:
        return {27, 12, 7, typography::itemSize};
    case TembraButton::Size::regular:
        return {30, 14, 8, typography::bodySize};
    case TembraButton::Size::large:
        return {39, 30, 12, typography::headlineSize};
    }
    Q_UNREACHABLE();
}

} // namespace

TembraButton::TembraButton(Kind kind, QWidget *parent)
    : TembraButton(kind, Size::regular, QString(), parent) {}

TembraButton::TembraButton(Kind kind, Size size, const QString &title, QWidget *parent)
    : QAbstractButton(parent), m_kind(kind), m_size(size) {
    setText(title);
    setFont(typography::font(measures(size).fontSize, kind == Kind::plain ? QFont::Normal : QFont::DemiBold));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TembraButton::sizeHint() const {
    const auto [height, sideMargin, radius, fontSize] = measures(m_size);
    const int width = QFontMetrics(font()).horizontalAdvance(text()) + 2 * sideMargin;
    return QSize(width, height).grownBy({ringMargin, ringMargin, ringMargin, ringMargin});
}

QColor TembraButton::fill() const {
    const Theme &theme = Theme::of(*this);
    const bool isHovered = underMouse() && isEnabled();
    switch (m_kind) {
    case Kind::primary:
        return isDown() ? theme.primaryPressed : isHovered ? theme.primaryHovered : theme.primary;
    case Kind::plain:
        return isDown() ? theme.controlPressed : isHovered ? theme.controlHovered : theme.control;
    case Kind::accent:
        return isDown() ? theme.accentPressed : isHovered ? theme.accentHovered : theme.accent;
    }
    Q_UNREACHABLE();
}

void TembraButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(Theme::disabledOpacity);
    const Theme &theme = Theme::of(*this);
    const QRectF body = controlBody(*this);
    const qreal radius = measures(m_size).radius;
    const bool isPlain = m_kind == Kind::plain;
    drawField(painter, body, radius, fill(), isPlain ? theme.controlBorder : QColor(Qt::transparent));
    painter.setPen(isPlain ? theme.text : m_kind == Kind::accent ? theme.onAccent : theme.onPrimary);
    painter.drawText(body, Qt::AlignCenter, text());
    if (m_keyboardFocus.isShown())
        drawFocusRing(painter, body, radius, theme.focusRing);
}

void TembraButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

} // namespace tembra
