#include "editor/canvas/PointGesture.h"

#include "editor/canvas/AnnotationEditing.h"
#include "editor/model/AnnotationText.h"

#include <QCoreApplication>
#include <QLineF>

namespace tembra {

namespace {

QPointF handleOf(const ScreenshotAnnotation &annotation, std::size_t index) {
    if (annotation.text)
        return QRectF(annotation.points[0].toPointF(), AnnotationText(*annotation.text).size()).bottomRight();
    return annotation.editingPoints()[index];
}

} // namespace

PointGesture::PointGesture(ScreenshotAnnotation annotation, std::size_t index, QPointF start,
                           const QRectF &limits, double straightening)
    : m_annotation(std::move(annotation)),
      m_index(index),
      m_limits(limits),
      m_straightening(straightening),
      m_grip(handleOf(m_annotation, index), start, straightening / 2) {}

CanvasDraft PointGesture::drag(QPointF pointer, Qt::KeyboardModifiers modifiers) {
    const auto held = m_grip.handleAt(pointer);
    if (!held)
        return {};
    QPointF point = *held;
    if (m_annotation.text) {
        const double padding = AnnotationText::horizontalPadding(m_annotation.text->fontSize);
        const double width = point.x() - m_annotation.points[0].x - 2 * padding;
        return {.annotations = {annotationEditing::wrappedAt(m_annotation, width, m_limits.width())}};
    }
    if (m_index >= 2)
        return {.annotations = {bent(annotationEditing::clampedTo(point, m_limits))}};
    if (modifiers & Qt::ShiftModifier)
        point = constrained(point);
    point = annotationEditing::clampedTo(point, m_limits);
    return {.annotations = {annotationEditing::withPoint(m_annotation, m_index, point)}};
}

QPointF PointGesture::constrained(QPointF point) const {
    const QPointF other = m_annotation.points[1 - m_index].toPointF();
    return annotationEditing::shortenedInto(other, annotationEditing::constrainedTo45(other, point),
                                            m_limits);
}

ScreenshotAnnotation PointGesture::bent(QPointF point) const {
    ScreenshotAnnotation result = annotationEditing::withPoint(m_annotation, 2, point);
    const QPointF middle = (m_annotation.points[0].toPointF() + m_annotation.points[1].toPointF()) / 2;
    if (QLineF(point, middle).length() <= m_straightening)
        result.bendPoint.reset();
    return result;
}

QString PointGesture::actionName() const {
    if (m_annotation.text)
        return QCoreApplication::translate("ScreenshotEdit", "Change text style");
    return m_index >= 2 ? QCoreApplication::translate("ScreenshotEdit", "Bend")
                        : QCoreApplication::translate("ScreenshotEdit", "Move end");
}

} // namespace tembra
