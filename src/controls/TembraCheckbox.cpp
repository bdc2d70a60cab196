#include "controls/TembraCheckbox.h"

#include "controls/ControlPainting.h"
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

TembraCheckbox::TembraCheckbox(const QString &title, QWidget *parent) : PaintedButton(parent) {
    setText(title);
    setCheckable(true);
    setFont(typography::font(typography::bodySize));
}

QSize TembraCheckbox::bodySize() const {
    const QFontMetrics metrics(font());
    const int width = boxSide + gap + metrics.horizontalAdvance(text());
    return QSize(width, std::max(boxSide, metrics.height()));
}

PaintedButton::Outline TembraCheckbox::paint(QPainter &painter, const Theme &theme) {
    const QRect body = rect().marginsRemoved({ringMargin, ringMargin, ringMargin, ringMargin});
    const QRect box =
        QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, {boxSide, boxSide}, body);
    if (isChecked()) {
        drawField(painter, box, radius,
                  isDown()      ? theme.accentPressed
                  : isHovered() ? theme.accentHovered
                                : theme.accent);
        drawTick(painter, box, theme.onAccent);
    } else {
        drawField(painter, box, radius, isDown() ? theme.controlPressed : theme.field,
                  isHovered() ? theme.secondaryText : theme.track);
    }
    const QRect title = QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter,
                                            {body.width() - boxSide - gap, body.height()}, body);
    painter.setPen(theme.text);
    painter.drawText(title, QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter,
                     text());
    return {box, radius};
}

} // namespace tembra
