#include "editor/canvas/PlacingGesture.h"

#include "editor/canvas/AnnotationEditing.h"

#include <QCoreApplication>

namespace tembra {

PlacingGesture::PlacingGesture(ScreenshotAnnotation number, const QRectF &limits)
    : m_annotation(std::move(number)), m_limits(limits) {}

CanvasDraft PlacingGesture::drag(QPointF point, Qt::KeyboardModifiers) {
    m_annotation.points = {EditorPoint::from(annotationEditing::clampedTo(point, m_limits))};
    return {.annotations = {m_annotation.replacingNumber(m_annotation.number->value, m_limits)}};
}

QString PlacingGesture::actionName() const {
    return QCoreApplication::translate("ScreenshotEdit", "Add number");
}

} // namespace tembra
