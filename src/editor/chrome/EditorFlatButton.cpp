#include "editor/chrome/EditorFlatButton.h"

#include "controls/ControlPainting.h"
#include "controls/TembraToolTip.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPolygonF>

namespace tembra {

namespace {

constexpr int bodyHeight = 25;
constexpr int sideMargin = 7;
constexpr int markRoom = 10;
constexpr qreal radius = 7;

void drawMark(QPainter &painter, const QPointF &center, const QColor &color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(
        QPolygonF{{center + QPointF(-3.2, -2.4), center + QPointF(3.2, -2.4), center + QPointF(0, 2.8)}});
}

} // namespace

EditorFlatButton::EditorFlatButton(const QString &title, const QString &name, Mark mark, QWidget *parent)
    : PaintedButton(parent), m_mark(mark) {
    setText(title);
    setAccessibleName(name);
    setFont(typography::font(typography::itemSize));
    setFocusPolicy(Qt::TabFocus);
    TembraToolTip::set(*this, name);
}

void EditorFlatButton::setLeastWidth(int width) {
    m_leastWidth = width;
    updateGeometry();
}

QSize EditorFlatButton::bodySize() const {
    const int mark = m_mark == Mark::opens ? markRoom : 0;
    const int width = QFontMetrics(font()).horizontalAdvance(text()) + 2 * sideMargin + mark;
    return {std::max(m_leastWidth, width), bodyHeight};
}

PaintedButton::Outline EditorFlatButton::paint(QPainter &painter, const Theme &theme) {
    const QRectF body = controlBody(*this);
    if (isDown() || isHovered())
        drawField(painter, body, radius, isDown() ? theme.controlPressed : theme.controlHovered);
    const QColor ink = isHovered() ? theme.text : theme.dockIcon;
    painter.setPen(ink);
    const bool opens = m_mark == Mark::opens;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const qreal shift = opens ? (isMirrored ? markRoom / 2.0 : -markRoom / 2.0) : 0;
    painter.drawText(body.translated(shift, 0), Qt::AlignCenter, text());
    if (opens) {
        const qreal reach = QFontMetrics(font()).horizontalAdvance(text()) / 2.0 + 2;
        const qreal x = body.center().x() + (isMirrored ? -reach : reach);
        drawMark(painter, {x, body.center().y() + 0.5}, ink);
    }
    return {body, radius};
}

void EditorFlatButton::keyPressEvent(QKeyEvent *event) {
    if (clickWithReturn(*event))
        return;
    switch (event->key()) {
    case Qt::Key_Up:
        Q_EMIT stepped(1);
        return;
    case Qt::Key_Down:
        Q_EMIT stepped(-1);
        return;
    default:
        PaintedButton::keyPressEvent(event);
    }
}

void EditorFlatButton::wheelEvent(QWheelEvent *event) {
    event->accept();
    if (const int steps = m_wheel.take(*event))
        Q_EMIT stepped(steps);
}

} // namespace tembra
