#include "editor/canvas/DrawingGesture.h"

#include "editor/canvas/AnnotationEditing.h"

#include <QCoreApplication>
#include <QLineF>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

// Of the sides of a shape or blur.
constexpr double leastSide = 1;

} // namespace

DrawingGesture::DrawingGesture(ScreenshotAnnotation prototype, QPointF start, const QRectF &limits,
                               double leastLength)
    : m_annotation(std::move(prototype)),
      m_start(annotationEditing::clampedTo(start, limits)),
      m_limits(limits),
      m_leastLength(leastLength) {}

CanvasDraft DrawingGesture::drag(QPointF point, Qt::KeyboardModifiers modifiers) {
    using namespace annotationEditing;
    QPointF end = clampedTo(point, m_limits);
    if (modifiers & Qt::ShiftModifier) {
        end = m_annotation.hasRectHandles() ? constrainedToSquare(m_start, point)
                                            : constrainedTo45(m_start, point);
        end = shortenedInto(m_start, end, m_limits);
    }
    QPointF start = m_start;
    if (modifiers & Qt::AltModifier) {
        start = shortenedInto(m_start, 2 * m_start - end, m_limits);
        end = 2 * m_start - start;
    }
    const QPointF way = end - start;
    const bool isSeen =
        !m_annotation.hasRectHandles() || (std::abs(way.x()) >= leastSide && std::abs(way.y()) >= leastSide);
    if (QLineF(start, end).length() < m_leastLength || !isSeen)
        return {};
    m_annotation.points = {EditorPoint::from(start), EditorPoint::from(end)};
    return {.annotations = {m_annotation}};
}

QString DrawingGesture::actionName() const {
    using Kind = ScreenshotAnnotation::Kind;
    switch (m_annotation.kind) {
    case Kind::arrow:
        return QCoreApplication::translate("ScreenshotEdit", "Draw arrow");
    case Kind::pencil:
        return QCoreApplication::translate("ScreenshotEdit", "Draw stroke");
    case Kind::line:
        return QCoreApplication::translate("ScreenshotEdit", "Draw line");
    case Kind::rectangle:
        return QCoreApplication::translate("ScreenshotEdit", "Draw rectangle");
    case Kind::ellipse:
        return QCoreApplication::translate("ScreenshotEdit", "Draw ellipse");
    default:
        return QCoreApplication::translate("ScreenshotEdit", "Blur");
    }
}

} // namespace tembra
