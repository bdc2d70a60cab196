#include "editor/model/NumberBadge.h"

#include "editor/model/AnnotationFont.h"
#include "editor/model/GrownRect.h"

#include <QString>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

// The size that the digits are taken from the typeface at; they are scaled from there.
constexpr int typeSize = 128;
// In diameters.
constexpr double sidePadding = 0.11;
constexpr double tallest = 0.64;
constexpr double rimPart = 0.045;

QPainterPath written(std::int64_t value) {
    QString text = QString::number(value);
    text.replace(u'-', QChar(0x2212));
    QPainterPath path;
    path.addText(QPointF(), annotationFont(typeSize), text);
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath pill(const QRectF &rect) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    return path;
}

} // namespace

NumberBadge NumberBadge::of(const EditorNumber &number, QPointF center) {
    const QPainterPath type = written(number.value);
    const QRectF ink = type.boundingRect();
    const double scale = std::min(number.resolvedFontSize() / typeSize,
                                  number.diameter * tallest / std::max(ink.height(), 1.0));
    // The ends are round: digits use as much of them as there is at their height.
    const double height = ink.height() * scale;
    const double roundEnds = number.diameter - std::sqrt(number.diameter * number.diameter - height * height);
    const double width =
        std::max(number.diameter, ink.width() * scale + roundEnds + 2 * sidePadding * number.diameter);
    NumberBadge badge;
    badge.body = {center.x() - width / 2, center.y() - number.diameter / 2, width, number.diameter};
    badge.digits = QTransform()
                       .translate(center.x(), center.y())
                       .scale(scale, scale)
                       .translate(-ink.center().x(), -ink.center().y())
                       .map(type);
    badge.rimWidth = std::max(1.0, number.diameter * rimPart);
    return badge;
}

QPainterPath NumberBadge::outline() const {
    return pill(body);
}

QPainterPath NumberBadge::rim(double growth) const {
    QPainterPath path = pill(grown(body, rimWidth + growth));
    path.addPath(outline().toReversed());
    return path;
}

} // namespace tembra
