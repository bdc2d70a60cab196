#include "controls/TembraButton.h"

#include "controls/ControlPainting.h"
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
    case TembraButton::Size::bar:
        return {28, 14, 8, typography::bodySize};
    case TembraButton::Size::card:
        return {30, 12, 8, typography::itemSize};
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
    : PaintedButton(parent), m_kind(kind), m_size(size) {
    setText(title);
    setFont(typography::font(measures(size).fontSize, kind == Kind::plain ? QFont::Normal : QFont::DemiBold));
}

QSize TembraButton::bodySize() const {
    const auto [height, sideMargin, radius, fontSize] = measures(m_size);
    const int width = QFontMetrics(font()).horizontalAdvance(text()) + 2 * sideMargin;
    return QSize(width, height);
}

QColor TembraButton::fill() const {
    const Theme &theme = Theme::of(*this);
    switch (m_kind) {
    case Kind::primary:
        return isDown() ? theme.primaryPressed : isHovered() ? theme.primaryHovered : theme.primary;
    case Kind::plain:
        return isDown() ? theme.controlPressed : isHovered() ? theme.controlHovered : theme.control;
    case Kind::accent:
        return isDown() ? theme.accentPressed : isHovered() ? theme.accentHovered : theme.accent;
    }
    Q_UNREACHABLE();
}

PaintedButton::Outline TembraButton::paint(QPainter &painter, const Theme &theme) {
    const QRectF body = controlBody(*this);
    const qreal radius = measures(m_size).radius;
    const bool isPlain = m_kind == Kind::plain;
    drawField(painter, body, radius, fill(), isPlain ? theme.controlBorder : QColor(Qt::transparent));
    painter.setPen(isPlain ? theme.text : m_kind == Kind::accent ? theme.onAccent : theme.onPrimary);
    painter.drawText(body, Qt::AlignCenter, text());
    return {body, radius};
}

void TembraButton::keyPressEvent(QKeyEvent *event) {
    if (!clickWithReturn(*event))
        PaintedButton::keyPressEvent(event);
}

} // namespace tembra
