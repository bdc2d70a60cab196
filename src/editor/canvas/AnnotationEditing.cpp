#include "editor/canvas/AnnotationEditing.h"

#include "editor/model/AnnotationText.h"
#include "editor/model/ContrastColor.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace tembra::annotationEditing {

namespace {

using Kind = ScreenshotAnnotation::Kind;

void setColor(ScreenshotAnnotation &annotation, const EditorColor &color) {
    if (annotation.text && annotation.text->background.a > 0) {
        annotation.text->background = color;
        annotation.color = contrasting(color);
        return;
    }
    annotation.color = color;
}

void setBackground(ScreenshotAnnotation &annotation, bool has) {
    if (!annotation.text || has == (annotation.text->background.a > 0))
        return;
    const EditorColor color = styleOf(annotation).color;
    annotation.text->background = has ? color : EditorColor{0, 0, 0, 0};
    annotation.color = has ? contrasting(color) : color;
}

void setSize(ScreenshotAnnotation &annotation, double size) {
    const auto [least, most] = sizeLimits(annotation.kind);
    size = std::clamp(size, least, most);
    if (annotation.text) {
        annotation.text->fontSize = size;
    } else if (annotation.number) {
        annotation.number->diameter = size;
        annotation.number->fontSize.reset();
    } else if (annotation.kind != Kind::blur) {
        annotation.width = size;
    }
}

// What takes one line to another: turned and scaled about their first points.
QPointF carried(QPointF point, const QLineF &from, const QLineF &to) {
    const QPointF way = point - from.p1();
    const QPointF along(from.dx(), from.dy());
    const double squared = QPointF::dotProduct(along, along);
    if (squared <= 0)
        return (to.p1() + to.p2()) / 2;
    const double part = QPointF::dotProduct(way, along) / squared;
    const double aside = (along.x() * way.y() - along.y() * way.x()) / squared;
    return to.p1() + part * QPointF(to.dx(), to.dy()) + aside * QPointF(-to.dy(), to.dx());
}

} // namespace

std::pair<double, double> sizeLimits(Kind kind) {
    switch (kind) {
    case Kind::text:
        return {8, 256};
    case Kind::number:
        return {16, 1'024};
    default:
        return {1, 200};
    }
}

double imageUnit(QSizeF image) {
    constexpr double ordinaryArea = 1'280.0 * 800;
    return std::clamp(std::sqrt(image.width() * image.height() / ordinaryArea), 0.5, 8.0);
}

double steppedSize(double size, int steps) {
    for (; steps > 0; --steps)
        size = std::round(std::max(size + 1, size * 13 / 12));
    for (; steps < 0; ++steps)
        size = std::round(std::min(size - 1, size * 12 / 13));
    return size;
}

ScreenshotAnnotation made(Kind kind, const EditorStyle &style) {
    ScreenshotAnnotation annotation{
        .id = QUuid::createUuid(), .kind = kind, .color = style.color, .width = style.size};
    switch (kind) {
    case Kind::text:
        annotation.width = 0;
        annotation.text = EditorText{.string = {}, .fontSize = style.size, .maximumWidth = 1};
        setBackground(annotation, style.hasBackground);
        break;
    case Kind::number:
        annotation.width = 0;
        annotation.number = EditorNumber{.diameter = style.size};
        break;
    case Kind::blur:
        annotation.width = 0;
        annotation.blur = EditorBlur{style.strength};
        break;
    case Kind::pencil:
        annotation.pencil = EditorPencil{};
        break;
    case Kind::rectangle:
    case Kind::ellipse:
        annotation.filled = style.isFilled;
        break;
    case Kind::arrow:
    case Kind::line:
        break;
    }
    return annotation;
}

EditorStyle styleOf(const ScreenshotAnnotation &annotation) {
    EditorStyle style{.color = annotation.color, .size = annotation.width};
    style.isFilled = annotation.filled.value_or(false);
    if (annotation.text) {
        style.size = annotation.text->fontSize;
        style.hasBackground = annotation.text->background.a > 0;
        if (style.hasBackground)
            style.color = annotation.text->background;
    }
    if (annotation.number)
        style.size = annotation.number->diameter;
    if (annotation.blur)
        style.strength = annotation.blur->strength;
    return style;
}

ScreenshotAnnotation restyled(const ScreenshotAnnotation &annotation, const EditorStyleChange &change,
                              const QRectF &limits) {
    ScreenshotAnnotation result = annotation;
    if (change.color && result.kind != Kind::blur)
        setColor(result, *change.color);
    if (change.size)
        setSize(result, *change.size);
    if (change.sizeSteps != 0)
        setSize(result, steppedSize(styleOf(result).size, change.sizeSteps));
    // A larger badge stays in the image.
    if (result.number && (change.size || change.sizeSteps != 0))
        result = result.replacingNumber(result.number->value, limits);
    if (change.isFilled && result.isShape())
        result.filled = *change.isFilled;
    if (change.hasBackground)
        setBackground(result, *change.hasBackground);
    if (change.strength && result.blur)
        result.blur->strength = *change.strength;
    if (change.number && result.number)
        result = result.replacingNumber(*change.number, limits);
    if (change.straightens)
        result.bendPoint.reset();
    return result;
}

const ScreenshotAnnotation *find(std::span<const ScreenshotAnnotation> annotations, const QUuid &id) {
    const auto found = std::ranges::find(annotations, id, &ScreenshotAnnotation::id);
    return found == annotations.end() ? nullptr : &*found;
}

QRectF alignmentRect(const ScreenshotAnnotation &annotation) {
    return annotation.hasRectHandles() ? annotation.shapeRect() : annotation.path().boundingRect();
}

ScreenshotAnnotation moved(const ScreenshotAnnotation &annotation, QPointF delta) {
    ScreenshotAnnotation result = annotation;
    for (EditorPoint &point : result.points)
        point = EditorPoint::from(point.toPointF() + delta);
    if (result.bendPoint)
        result.bendPoint = EditorPoint::from(result.bendPoint->toPointF() + delta);
    return result;
}

ScreenshotAnnotation grownBy(const ScreenshotAnnotation &annotation, QPointF delta, const QRectF &limits) {
    if (annotation.hasRectHandles())
        return annotation.resizedShape(4, annotation.shapeRect().bottomRight() + delta, false, limits);
    if (annotation.kind == Kind::arrow || annotation.kind == Kind::line)
        return withPoint(annotation, 1, clampedTo(annotation.points[1].toPointF() + delta, limits));
    if (!annotation.text)
        return annotation;
    // The words may end long before the edge at which they would wrap.
    double width = annotation.text->maximumWidth;
    if (delta.x() < 0)
        width = std::min(width, AnnotationText(*annotation.text).size().width() -
                                    2 * AnnotationText::horizontalPadding(annotation.text->fontSize));
    return wrappedAt(annotation, width + delta.x(), limits.width());
}

ScreenshotAnnotation wrappedAt(ScreenshotAnnotation text, double width, double most) {
    const double least = 2 * text.text->fontSize;
    text.text->maximumWidth = std::clamp(width, least, std::max(most, least));
    return text;
}

ScreenshotAnnotation withPoint(const ScreenshotAnnotation &annotation, std::size_t index, QPointF point) {
    ScreenshotAnnotation result = annotation;
    if (annotation.points.size() < 2)
        return result;
    const QLineF before(annotation.points[0].toPointF(), annotation.points[1].toPointF());
    if (index < 2) {
        result.points[index] = EditorPoint::from(point);
        const QLineF after(result.points[0].toPointF(), result.points[1].toPointF());
        if (annotation.bendPoint)
            result.bendPoint = EditorPoint::from(carried(annotation.bendPoint->toPointF(), before, after));
        return result;
    }
    result.bendPoint = EditorPoint::from(point);
    return result;
}

QPointF constrainedTo45(QPointF origin, QPointF point) {
    const QPointF way = point - origin;
    if (way.isNull())
        return point;
    constexpr double eighth = std::numbers::pi / 4;
    const double angle = std::round(std::atan2(way.y(), way.x()) / eighth) * eighth;
    const QPointF direction(std::cos(angle), std::sin(angle));
    return origin + QPointF::dotProduct(way, direction) * direction;
}

QPointF constrainedToSquare(QPointF origin, QPointF point) {
    const QPointF way = point - origin;
    const double side = std::max(std::abs(way.x()), std::abs(way.y()));
    return origin + QPointF(std::copysign(side, way.x()), std::copysign(side, way.y()));
}

QPointF clampedTo(QPointF point, const QRectF &limits) {
    return {std::clamp(point.x(), limits.left(), limits.right()),
            std::clamp(point.y(), limits.top(), limits.bottom())};
}

QPointF shortenedInto(QPointF origin, QPointF point, const QRectF &limits) {
    const auto part = [](double from, double to, double least, double most) {
        const double edge = to < least ? least : most;
        return to < least || to > most ? std::clamp((edge - from) / (to - from), 0.0, 1.0) : 1;
    };
    const double kept = std::min(part(origin.x(), point.x(), limits.left(), limits.right()),
                                 part(origin.y(), point.y(), limits.top(), limits.bottom()));
    return origin + (point - origin) * kept;
}

} // namespace tembra::annotationEditing
