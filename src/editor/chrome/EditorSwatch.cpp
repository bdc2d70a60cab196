#include "editor/chrome/EditorSwatch.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"

#include <QConicalGradient>
#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace tembra {

namespace {

constexpr qreal discRadius = 10;

QConicalGradient rainbow(const QPointF &center) {
    constexpr int hues = 6;
    QConicalGradient gradient(center, 90);
    for (int step = 0; step <= hues; ++step) {
        const auto position = static_cast<float>(step) / hues;
        gradient.setColorAt(position, QColor::fromHsvF(step == hues ? 0.0F : position, 0.72F, 0.98F));
    }
    return gradient;
}

} // namespace

EditorSwatch::EditorSwatch(const QColor &color, const QString &name, QWidget *parent)
    : PaintedButton(parent), m_color(color), m_isCustom(false) {
    setAccessibleName(name);
    setCheckable(true);
    setAutoExclusive(true);
}

EditorSwatch::EditorSwatch(const QString &name, QWidget *parent) : PaintedButton(parent), m_isCustom(true) {
    setAccessibleName(name);
    setCheckable(true);
    setAutoExclusive(true);
}

void EditorSwatch::setCustomColor(const std::optional<QColor> &color) {
    m_color = color;
    update();
}

void EditorSwatch::paintRainbow(QPainter &painter, const Theme &theme, const QPointF &center) const {
    constexpr qreal innerRadius = 6.5;
    constexpr qreal armLength = 3;
    painter.setBrush(rainbow(center));
    painter.drawEllipse(center, discRadius, discRadius);
    QColor inner = m_color.value_or(theme.dock);
    inner.setAlpha(255);
    painter.setBrush(inner);
    painter.drawEllipse(center, innerRadius, innerRadius);
    if (m_color)
        return;
    painter.setPen(QPen(theme.dockIcon, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(center - QPointF(armLength, 0), center + QPointF(armLength, 0));
    painter.drawLine(center - QPointF(0, armLength), center + QPointF(0, armLength));
}

// Keeps a colour like the dock's apart from it.
void EditorSwatch::paintEdge(QPainter &painter, const Theme &theme, const QPointF &center) const {
    constexpr float near = 0.15F;
    if (std::abs(m_color->lightnessF() - theme.dock.lightnessF()) > near)
        return;
    painter.setPen(QPen(theme.dockSeparator, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(center, discRadius - 0.5, discRadius - 0.5);
}

PaintedButton::Outline EditorSwatch::paint(QPainter &painter, const Theme &theme) {
    constexpr qreal markRadius = 13;
    const QRectF body = controlBody(*this);
    const QPointF center = body.center();
    painter.setPen(Qt::NoPen);
    if (m_isCustom) {
        paintRainbow(painter, theme, center);
    } else {
        painter.setBrush(*m_color);
        painter.drawEllipse(center, discRadius, discRadius);
        paintEdge(painter, theme, center);
    }
    painter.setBrush(Qt::NoBrush);
    if (isChecked() || isHovered()) {
        painter.setPen(QPen(isChecked() ? theme.text : theme.dockSeparator, 2));
        painter.drawEllipse(center, markRadius, markRadius);
    }
    return {body, body.width() / 2};
}

void EditorSwatch::keyPressEvent(QKeyEvent *event) {
    if (!clickWithReturn(*event))
        PaintedButton::keyPressEvent(event);
}

} // namespace tembra
