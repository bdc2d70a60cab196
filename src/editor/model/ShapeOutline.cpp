#include "editor/model/ShapeOutline.h"

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

QPainterPath line(const QLineF &line, double width) {
    if (!(width > 0))
        return empty();
    return strokeOutline(std::array{StrokePoint{line.p1(), width / 2}, StrokePoint{line.p2(), width / 2}});
}

QPainterPath outlinedRectangle(const QRectF &rect, double width) {
    if (!(width > 0))
        return empty();
    const double half = width / 2;
    const double radius = std::min(width * cornerRadius, shorterSide(rect) / 2);
    QPainterPath path = rounded(rect.adjusted(-half, -half, half, half), radius + half);
    const QRectF inside = rect.adjusted(half, half, -half, -half);
    if (shorterSide(inside) > 0)
        path.addPath(rounded(inside, std::max(radius - half, 0.0)).toReversed());
    return path;
}

QPainterPath filledRectangle(const QRectF &rect, double width) {
    if (rect.isEmpty())
        return empty();
    return rounded(rect, std::min(width * cornerRadius, shorterSide(rect) / 6));
}

QPainterPath outlinedEllipse(const QRectF &rect, double width) {
    if (!(width > 0))
        return empty();
    QPainterPath middle;
    middle.addEllipse(rect);
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setCurveThreshold(0.02);
    return stroker.createStroke(middle);
}

QPainterPath filledEllipse(const QRectF &rect) {
    QPainterPath path = empty();
    if (!rect.isEmpty())
        path.addEllipse(rect);
    return path;
}

} // namespace tembra::shapeOutline
