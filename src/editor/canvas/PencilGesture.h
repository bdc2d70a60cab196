#pragma once

#include "editor/canvas/CanvasGesture.h"

namespace tembra {

// Draws a pencil stroke along the pointer's way; with Shift a straight one, at a multiple of 45°.
class PencilGesture final : public CanvasGesture {
public:
    // Samples closer than `spacing` to the one before are left out.
    PencilGesture(ScreenshotAnnotation prototype, QPointF start, const QRectF &limits, double spacing);

    [[nodiscard]] CanvasDraft drag(QPointF point, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QString actionName() const override;
    [[nodiscard]] bool selects() const override { return false; }

private:
    ScreenshotAnnotation m_annotation;
    const QRectF m_limits;
    const double m_spacing;
};

} // namespace tembra
