#pragma once

#include "editor/canvas/AlignmentSurroundings.h"
#include "editor/canvas/CanvasGesture.h"

namespace tembra {

// Moves annotations by whole pixels. They come into line with `targets` within `tolerance`, unless Ctrl is
// held; Shift keeps to one axis. Something of them stays within `limits`.
class MovingGesture final : public CanvasGesture {
public:
    using Surroundings = AlignmentSurroundings;

    // `areCopies` when the originals stay where they are.
    MovingGesture(std::vector<ScreenshotAnnotation> annotations, QPointF start, Surroundings surroundings,
                  bool areCopies);

    [[nodiscard]] CanvasDraft drag(QPointF point, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QString actionName() const override;

private:
    [[nodiscard]] QPointF kept(QPointF delta) const;

    const std::vector<ScreenshotAnnotation> m_annotations;
    const QPointF m_start;
    const Surroundings m_surroundings;
    const bool m_areCopies;
    QRectF m_bounds;
    // Of everything that is drawn of them.
    QRectF m_drawnBounds;
    // The pointer has left the place of the press.
    bool m_hasMoved = false;
};

} // namespace tembra
