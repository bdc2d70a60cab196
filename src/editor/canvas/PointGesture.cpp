#include "editor/canvas/PointGesture.h"

#include "editor/canvas/AnnotationEditing.h"
#include "editor/model/AnnotationText.h"

#include <QCoreApplication>
#include <QLineF>

namespace tembra {

PointGesture::PointGesture(ScreenshotAnnotation annotation, std::size_t index, const QRectF &limits,
                           double straightening)
    : m_annotation(std::move(annotation)), m_index(index), m_limits(limits), m_straightening(straightening) {}

CanvasDraft PointGesture::drag(QPointF point, Qt::KeyboardModifiers modifiers) {
    if (m_annotation.text) {
        const double padding = AnnotationText::horizontalPadding(m_annotation.text->fontSize);
        const double width = point.x() - m_annotation.points[0].x - 2 * padding;
        return {.annotations = {annotationEditing::wrappedAt(m_annotation, width, m_limits.width())}};
    }
    if (m_index >= 2)
        return {.annotations = {bent(annotationEditing::clampedTo(point, m_limits))}};
    if (modifiers & Qt::ShiftModifier)
        point = annotationEditing::constrainedTo45(m_annotation.points[1 - m_index].toPointF(), point);
    point = annotationEditing::clampedTo(point, m_limits);
    return {.annotations = {annotationEditing::withPoint(m_annotation, m_index, point)}};
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
