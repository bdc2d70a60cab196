#include "editor/model/AnnotationOutline.h"

#include "editor/model/AnnotationText.h"
#include "editor/model/ArrowShape.h"
#include "editor/model/NumberBadge.h"
#include "editor/model/PencilStroke.h"
#include "editor/model/ShapeOutline.h"

#include <algorithm>

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

QPainterPath rectangle(const ScreenshotAnnotation &shape, double growth) {
    return shape.filled.value_or(false)
               ? shapeOutline::filledRectangle(shape.shapeRect(), shape.width, growth)
               : shapeOutline::outlinedRectangle(shape.shapeRect(), shape.width, growth);
}

QPainterPath ellipse(const ScreenshotAnnotation &shape, double growth) {
    return shape.filled.value_or(false)
               ? shapeOutline::filledEllipse(shape.shapeRect(), growth)
               : shapeOutline::outlinedEllipse(shape.shapeRect(), shape.width, growth);
}

} // namespace

QPainterPath annotationOutline(const ScreenshotAnnotation &annotation, double growth) {
    const std::vector<EditorPoint> &points = annotation.points;
    switch (annotation.kind) {
    case Kind::arrow:
        return arrowShape(annotation).outline(growth);
    case Kind::pencil:
        return pencilStroke(points, annotation.width, annotation.pencil, growth);
    case Kind::line:
        return shapeOutline::line({points[0].toPointF(), points[1].toPointF()}, annotation.width, growth);
    case Kind::rectangle:
        return rectangle(annotation, growth);
    case Kind::ellipse:
        return ellipse(annotation, growth);
    case Kind::text:
        return AnnotationText(*annotation.text).box(points[0].toPointF());
    case Kind::number:
        return NumberBadge::of(*annotation.number, points[0].toPointF()).outline();
    case Kind::blur: {
        QPainterPath rect;
        rect.addRect(annotation.shapeRect());
        return rect;
    }
    }
    Q_UNREACHABLE();
}

double haloWidth(const ScreenshotAnnotation &annotation) {
    switch (annotation.kind) {
    case Kind::blur:
        return 0;
    case Kind::text:
        return std::max(1.4, annotation.text->fontSize * 0.09);
    case Kind::number:
        return std::max(1.4, annotation.number->diameter * 0.05);
    case Kind::arrow:
    case Kind::pencil:
    case Kind::line:
    case Kind::rectangle:
    case Kind::ellipse:
        return std::clamp(annotation.width * 0.26, 1.4, 12.0);
    }
    Q_UNREACHABLE();
}

} // namespace tembra
