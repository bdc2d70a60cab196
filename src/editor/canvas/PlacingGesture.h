#pragma once

#include "editor/canvas/CanvasGesture.h"

namespace tembra {

// Puts a number down where the press was, to be dragged to its place.
class PlacingGesture final : public CanvasGesture {
public:
    PlacingGesture(ScreenshotAnnotation number, const QRectF &limits);

    [[nodiscard]] CanvasDraft drag(QPointF point, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QString actionName() const override;

private:
    ScreenshotAnnotation m_annotation;
    const QRectF m_limits;
};

} // namespace tembra
