#include "editor/canvas/BandGesture.h"

namespace tembra {

BandGesture::BandGesture(std::span<const ScreenshotAnnotation> annotations, QPointF start, QSet<QUuid> base)
    : m_start(start), m_base(std::move(base)) {
    m_candidates.reserve(annotations.size());
    for (const ScreenshotAnnotation &annotation : annotations)
        m_candidates.push_back({annotation.id, annotation.path()});
}

CanvasDraft BandGesture::drag(QPointF point, Qt::KeyboardModifiers) {
    const QRectF band = QRectF(m_start, point).normalized();
    QSet<QUuid> selection = m_base;
    for (const Candidate &candidate : m_candidates) {
        if (candidate.path.boundingRect().intersects(band) && candidate.path.intersects(band))
            selection.insert(candidate.id);
    }
    return {.band = band, .selection = std::move(selection)};
}

} // namespace tembra
