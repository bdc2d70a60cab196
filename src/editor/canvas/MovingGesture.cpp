#include "editor/canvas/MovingGesture.h"

#include "editor/canvas/AlignmentGuides.h"
#include "editor/canvas/AnnotationEditing.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace tembra {

MovingGesture::MovingGesture(std::vector<ScreenshotAnnotation> annotations, QPointF start,
                             Surroundings surroundings, bool areCopies)
    : m_annotations(std::move(annotations)),
      m_start(start),
      m_surroundings(std::move(surroundings)),
      m_areCopies(areCopies) {
    for (const ScreenshotAnnotation &annotation : m_annotations) {
        m_bounds |= annotationEditing::alignmentRect(annotation);
        m_drawnBounds |= annotation.bounds();
    }
}

CanvasDraft MovingGesture::drag(QPointF point, Qt::KeyboardModifiers modifiers) {
    QPointF delta = point - m_start;
    // A press with an unsteady hand moves nothing.
    m_hasMoved = m_hasMoved || delta.manhattanLength() >= m_surroundings.tolerance / 2;
    if (!m_hasMoved)
        return {};
    if (modifiers & Qt::ShiftModifier)
        (std::abs(delta.x()) < std::abs(delta.y()) ? delta.rx() : delta.ry()) = 0;
    delta = QPointF(std::round(delta.x()), std::round(delta.y()));
    CanvasDraft draft;
    if (!(modifiers & (Qt::ControlModifier | Qt::ShiftModifier))) {
        AlignmentGuides guides =
            AlignmentGuides::of(m_bounds.translated(delta), m_surroundings.targets, m_surroundings.tolerance);
        delta += guides.correction;
        draft.guides = std::move(guides.lines);
    }
    delta = kept(delta);
    draft.movedBy = delta;
    draft.movedBounds = m_drawnBounds.translated(delta);
    for (const ScreenshotAnnotation &annotation : m_annotations)
        draft.annotations.push_back(annotationEditing::moved(annotation, delta));
    return draft;
}

QPointF MovingGesture::kept(QPointF delta) const {
    const QRectF &limits = m_surroundings.limits;
    const auto within = [this](double way, double low, double high, double least, double most) {
        const double shown = std::min(2 * m_surroundings.tolerance, high - low);
        return std::clamp(way, least + shown - high, std::max(most - shown - low, least + shown - high));
    };
    return {within(delta.x(), m_bounds.left(), m_bounds.right(), limits.left(), limits.right()),
            within(delta.y(), m_bounds.top(), m_bounds.bottom(), limits.top(), limits.bottom())};
}

QString MovingGesture::actionName() const {
    return m_areCopies ? QCoreApplication::translate("ScreenshotEdit", "Duplicate")
                       : QCoreApplication::translate("ScreenshotEdit", "Move annotations");
}

} // namespace tembra
