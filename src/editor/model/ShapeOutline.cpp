#include "editor/model/ShapeOutline.h"

#include "editor/model/GrownRect.h"
#include "editor/model/StrokeOutline.h"

#include <QPainterPathStroker>

#include <algorithm>
#include <array>

namespace tembra::shapeOutline {

namespace {

// Of the line's middle, in widths.
constexpr double cornerRadius = 1.5;

QPainterPath empty() {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath rounded(const QRectF &rect, double radius) {
    QPainterPath path = empty();
    path.addRoundedRect(rect, radius, radius);
    return path;
}

double shorterSide(const QRectF &rect) {
    return std::min(rect.width(), rect.height());
}

} // namespace

QPainterPath line(const QLineF &line, double width, double growth) {
    if (!(width > 0))
        return empty();
    const double radius = width / 2 + growth;
    return strokeOutline(std::array{StrokePoint{line.p1(), radius}, StrokePoint{line.p2(), radius}});
}

QPainterPath outlinedRectangle(const QRectF &rect, double width, double growth) {
    if (!(width > 0))
        return empty();
    const double reach = width / 2 + growth;
    const double radius = std::min(width * cornerRadius, shorterSide(rect) / 2);
    QPainterPath path = rounded(grown(rect, reach), radius + reach);
    const QRectF inside = grown(rect, -reach);
    if (inside.width() > 0 && inside.height() > 0)
        path.addPath(rounded(inside, std::max(radius - reach, 0.0)).toReversed());
    return path;
}

QPainterPath filledRectangle(const QRectF &rect, double width, double growth) {
    if (rect.isEmpty())
        return empty();
    const double radius = std::min(width * cornerRadius, shorterSide(rect) / 6);
    return rounded(grown(rect, growth), radius + growth);
}

QPainterPath outlinedEllipse(const QRectF &rect, double width, double growth) {
    if (!(width > 0))
        return empty();
    QPainterPath middle;
    middle.addEllipse(rect);
    QPainterPathStroker stroker;
    stroker.setWidth(width + 2 * growth);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setCurveThreshold(0.02);
    return stroker.createStroke(middle);
}

QPainterPath filledEllipse(const QRectF &rect, double growth) {
    QPainterPath path = empty();
    if (!rect.isEmpty())
        path.addEllipse(grown(rect, growth));
    return path;
}

} // namespace tembra::shapeOutline
