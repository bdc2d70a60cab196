#pragma once

#include "editor/canvas/CanvasGesture.h"

#include <span>

namespace tembra {

// Selects what the rectangle from the press to the pointer touches, in addition to `base`.
class BandGesture final : public CanvasGesture {
public:
    BandGesture(std::span<const ScreenshotAnnotation> annotations, QPointF start, QSet<QUuid> base);

    [[nodiscard]] CanvasDraft drag(QPointF point, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QString actionName() const override { return {}; }

private:
    struct Candidate {
        QUuid id;
        QPainterPath path;
    };
    std::vector<Candidate> m_candidates;
    const QPointF m_start;
    const QSet<QUuid> m_base;
};

} // namespace tembra
