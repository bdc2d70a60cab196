#include "controls/TembraLinkButton.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QKeyEvent>
#include <QPainter>

namespace tembra {

TembraLinkButton::TembraLinkButton(const QString &title, QWidget *parent) : PaintedButton(parent) {
    setText(title);
    setFont(typography::font(typography::bodySize));
    setCursor(Qt::PointingHandCursor);
}

QSize TembraLinkButton::bodySize() const {
    const QFontMetrics metrics(font());
    return QSize(metrics.horizontalAdvance(text()) + 4, metrics.height());
}

PaintedButton::Outline TembraLinkButton::paint(QPainter &painter, const Theme &theme) {
    if (isDown())
        painter.setOpacity(0.7);
    QFont titleFont = font();
    titleFont.setUnderline(isHovered());
    painter.setFont(titleFont);
    painter.setPen(theme.link);
    const QRectF body = controlBody(*this);
    painter.drawText(body, Qt::AlignCenter, text());
    return {body, 4};
}

void TembraLinkButton::keyPressEvent(QKeyEvent *event) {
    if (!clickWithReturn(*event))
        PaintedButton::keyPressEvent(event);
}

} // namespace tembra
