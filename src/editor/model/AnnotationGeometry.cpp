#include "editor/model/AnnotationOutline.h"
#include "editor/model/GrownRect.h"
#include "editor/model/NumberBadge.h"
#include "editor/model/RectHandles.h"
#include "editor/model/ScreenshotAnnotation.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

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
    if (kind != Kind::arrow || points.size() < 2)
        return {};
    return bendPoint ? bendPoint->toPointF() : (points[0].toPointF() + points[1].toPointF()) / 2;
}

QRectF ScreenshotAnnotation::shapeRect() const {
    if (points.size() < 2)
        return {};
    return QRectF(points[0].toPointF(), points[1].toPointF()).normalized();
}

QPainterPath ScreenshotAnnotation::path() const {
    return isDrawable() ? annotationOutline(*this, 0) : QPainterPath();
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
