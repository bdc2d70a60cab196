#include "editor/model/AnnotationText.h"
#include "editor/model/ArrowShape.h"
#include "editor/model/HaloWidth.h"
#include "editor/model/NumberBadge.h"
#include "editor/model/PencilStroke.h"
#include "editor/model/RectHandles.h"
#include "editor/model/ScreenshotAnnotation.h"
#include "editor/model/ShapeOutline.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

ArrowShape arrowShape(const ScreenshotAnnotation &arrow) {
    std::optional<QPointF> bend;
    if (arrow.bendPoint)
        bend = arrow.bendPoint->toPointF();
    return {.start = arrow.points[0].toPointF(),
            .end = arrow.points[1].toPointF(),
            .bend = bend,
            .width = arrow.width};
}

QPainterPath rectanglePath(const ScreenshotAnnotation &shape) {
    return shape.filled.value_or(false) ? shapeOutline::filledRectangle(shape.shapeRect(), shape.width)
                                        : shapeOutline::outlinedRectangle(shape.shapeRect(), shape.width);
}

QPainterPath ellipsePath(const ScreenshotAnnotation &shape) {
    return shape.filled.value_or(false) ? shapeOutline::filledEllipse(shape.shapeRect())
                                        : shapeOutline::outlinedEllipse(shape.shapeRect(), shape.width);
}

double distance(QPointF point, const QLineF &edge) {
    const QPointF along(edge.dx(), edge.dy());
    const double squared = QPointF::dotProduct(along, along);
    const double part =
        squared > 0 ? std::clamp(QPointF::dotProduct(point - edge.p1(), along) / squared, 0.0, 1.0) : 0;
    return QLineF(point, edge.pointAt(part)).length();
}

bool isNear(const QPainterPath &path, QPointF point, double tolerance) {
    for (const QPolygonF &polygon : path.toSubpathPolygons()) {
        for (qsizetype at = 0; at + 1 < polygon.size(); ++at) {
            if (distance(point, {polygon[at], polygon[at + 1]}) <= tolerance)
                return true;
        }
    }
    return false;
}

QRectF grown(const QRectF &rect, double margin) {
    return rect.adjusted(-margin, -margin, margin, margin);
}

// A rectangle moved as little as it must be to lie within others; centred where it is larger.
QRectF movedInto(QRectF rect, const QRectF &limits) {
    const auto place = [](double at, double size, double least, double room) {
        return size > room ? least + (room - size) / 2 : std::clamp(at, least, least + room - size);
    };
    rect.moveTo(place(rect.left(), rect.width(), limits.left(), limits.width()),
                place(rect.top(), rect.height(), limits.top(), limits.height()));
    return rect;
}

} // namespace

double haloWidth(const ScreenshotAnnotation &annotation) {
    switch (annotation.kind) {
    case Kind::blur:
        return 0;
    case Kind::text:
        return std::max(1.0, annotation.text->fontSize * 0.07);
    case Kind::number:
        return std::max(1.0, annotation.number->diameter * 0.03);
    case Kind::arrow:
    case Kind::pencil:
    case Kind::line:
    case Kind::rectangle:
    case Kind::ellipse:
        return std::clamp(annotation.width * 0.2, 1.0, 12.0);
    }
    Q_UNREACHABLE();
}

QRectF ScreenshotAnnotation::bounds() const {
    const QPainterPath outline = path();
    if (outline.isEmpty())
        return {};
    switch (kind) {
    case Kind::text:
    case Kind::blur:
        return outline.boundingRect();
    case Kind::number: {
        const NumberBadge badge = NumberBadge::of(*number, points[0].toPointF());
        return grown(badge.body, badge.rimWidth + haloWidth(*this));
    }
    case Kind::arrow:
    case Kind::pencil:
    case Kind::line:
    case Kind::rectangle:
    case Kind::ellipse:
        return grown(outline.boundingRect(), haloWidth(*this));
    }
    Q_UNREACHABLE();
}

bool ScreenshotAnnotation::contains(QPointF point, double tolerance) const {
    const bool isSound = std::isfinite(point.x()) && std::isfinite(point.y()) && std::isfinite(tolerance);
    if (!isSound)
        return false;
    const QPainterPath outline = path();
    if (outline.isEmpty() || !grown(outline.boundingRect(), std::max(tolerance, 0.0)).contains(point))
        return false;
    return outline.contains(point) || (tolerance > 0 && isNear(outline, point, tolerance));
}

std::vector<QPointF> ScreenshotAnnotation::editingPoints() const {
    if (kind == Kind::arrow)
        return arrowEditingPoints();
    if (kind == Kind::line && points.size() >= 2)
        return {points[0].toPointF(), points[1].toPointF()};
    return {};
}

std::vector<QPointF> ScreenshotAnnotation::arrowEditingPoints() const {
    if (kind != Kind::arrow || points.size() < 2)
        return {};
    return {points[0].toPointF(), points[1].toPointF(), arrowMidpoint()};
}

QPointF ScreenshotAnnotation::arrowMidpoint() const {
    return kind == Kind::arrow && points.size() >= 2 ? arrowShape(*this).middle() : QPointF();
}

QRectF ScreenshotAnnotation::shapeRect() const {
    if (points.size() < 2)
        return {};
    return QRectF(points[0].toPointF(), points[1].toPointF()).normalized();
}

QPainterPath ScreenshotAnnotation::path() const {
    if (!isDrawable())
        return {};
    switch (kind) {
    case Kind::arrow:
        return arrowShape(*this).outline();
    case Kind::pencil:
        return pencilStroke(points, width, pencil);
    case Kind::line:
        return shapeOutline::line({points[0].toPointF(), points[1].toPointF()}, width);
    case Kind::rectangle:
        return rectanglePath(*this);
    case Kind::ellipse:
        return ellipsePath(*this);
    case Kind::text:
        return AnnotationText(*text).box(points[0].toPointF());
    case Kind::number:
        return NumberBadge::of(*number, points[0].toPointF()).outline();
    case Kind::blur: {
        QPainterPath rect;
        rect.addRect(shapeRect());
        return rect;
    }
    }
    Q_UNREACHABLE();
}

ScreenshotAnnotation ScreenshotAnnotation::resizedShape(int handle, QPointF point, bool preservingAspect,
                                                        QRectF limits) const {
    if (!hasRectHandles() || !isDrawable())
        return *this;
    const QRectF rect = rectHandles::resized(shapeRect(), handle, point, preservingAspect, limits);
    ScreenshotAnnotation result = *this;
    result.points = {EditorPoint::from(rect.topLeft()), EditorPoint::from(rect.bottomRight())};
    return result;
}

ScreenshotAnnotation ScreenshotAnnotation::replacingNumber(std::int64_t value, QRectF limits) const {
    if (!number)
        return *this;
    ScreenshotAnnotation result = *this;
    result.number->value = value;
    if (result.isDrawable()) {
        const QRectF body = NumberBadge::of(*result.number, points[0].toPointF()).body;
        result.points[0] = EditorPoint::from(movedInto(body, limits).center());
    }
    return result;
}

} // namespace tembra
