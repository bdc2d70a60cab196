#include "editor/canvas/PencilGesture.h"

#include "editor/canvas/AnnotationEditing.h"

#include <QCoreApplication>
#include <QLineF>

namespace tembra {

PencilGesture::PencilGesture(ScreenshotAnnotation prototype, QPointF start, const QRectF &limits,
                             double spacing)
    : m_annotation(std::move(prototype)), m_limits(limits), m_spacing(spacing) {
    m_annotation.points = {EditorPoint::from(annotationEditing::clampedTo(start, limits))};
}

CanvasDraft PencilGesture::drag(QPointF point, Qt::KeyboardModifiers modifiers) {
    auto &points = m_annotation.points;
    if (modifiers & Qt::ShiftModifier) {
        const QPointF start = points.front().toPointF();
        point = annotationEditing::shortenedInto(start, annotationEditing::constrainedTo45(start, point),
                                                 m_limits);
        points.resize(1);
    }
    point = annotationEditing::clampedTo(point, m_limits);
    if (QLineF(points.back().toPointF(), point).length() >= m_spacing)
        points.push_back(EditorPoint::from(point));
    return {.annotations = {m_annotation}};
}

QString PencilGesture::actionName() const {
    return QCoreApplication::translate("ScreenshotEdit", "Draw stroke");
}

} // namespace tembra
