#pragma once

#include "editor/model/EditorStyle.h"
#include "editor/model/EditorStyleChange.h"
#include "editor/model/ScreenshotAnnotation.h"

#include <QSizeF>

#include <optional>
#include <span>
#include <utility>

// How annotations are made and changed, as functions of values. Image space.
namespace tembra::annotationEditing {

// The least and the greatest size (EditorStyle.h) that an annotation of a kind can have.
[[nodiscard]] std::pair<double, double> sizeLimits(ScreenshotAnnotation::Kind kind);
// How many pixels of an image stand for one of an ordinary window's, so that what is drawn looks as large on
// a large image.
[[nodiscard]] double imageUnit(QSizeF image);
// The next size from one, by so many steps of a twelfth and at least a pixel.
[[nodiscard]] double steppedSize(double size, int steps);

// With an id of its own, and no points yet.
[[nodiscard]] ScreenshotAnnotation made(ScreenshotAnnotation::Kind kind, const EditorStyle &style);
[[nodiscard]] EditorStyle styleOf(const ScreenshotAnnotation &annotation);
// A change has no effect on what the kind does not have. A badge stays within `limits`.
[[nodiscard]] ScreenshotAnnotation restyled(const ScreenshotAnnotation &annotation,
                                            const EditorStyleChange &change, const QRectF &limits);
// The one with an id; nothing when it is not among them.
[[nodiscard]] const ScreenshotAnnotation *find(std::span<const ScreenshotAnnotation> annotations,
                                               const QUuid &id);
// What of it comes into line with others: the rectangle of a shape or blur, else the outline's.
[[nodiscard]] QRectF alignmentRect(const ScreenshotAnnotation &annotation);
[[nodiscard]] ScreenshotAnnotation moved(const ScreenshotAnnotation &annotation, QPointF delta);
// A rectangle, or an end, moved as keys do; others stay.
[[nodiscard]] ScreenshotAnnotation grownBy(const ScreenshotAnnotation &annotation, QPointF delta,
                                           const QRectF &limits);
// A text that wraps at another width, of at most `most`.
[[nodiscard]] ScreenshotAnnotation wrappedAt(ScreenshotAnnotation text, double width, double most);
// An end of a line or arrow there, or its bend; the bend keeps its place between the ends.
[[nodiscard]] ScreenshotAnnotation withPoint(const ScreenshotAnnotation &annotation, std::size_t index,
                                             QPointF point);

// The nearest point to `point` that lies from `origin` at a multiple of 45°.
[[nodiscard]] QPointF constrainedTo45(QPointF origin, QPointF point);
// The point that makes a square with `origin`, as large as the longer side.
[[nodiscard]] QPointF constrainedToSquare(QPointF origin, QPointF point);
[[nodiscard]] QPointF clampedTo(QPointF point, const QRectF &limits);
// The point, or where the way to it from `origin` leaves the limits.
[[nodiscard]] QPointF shortenedInto(QPointF origin, QPointF point, const QRectF &limits);

} // namespace tembra::annotationEditing
