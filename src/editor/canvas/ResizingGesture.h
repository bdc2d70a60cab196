#pragma once

#include "editor/canvas/AlignmentSurroundings.h"
#include "editor/canvas/CanvasGesture.h"
#include "editor/canvas/HandleGrip.h"

namespace tembra {

// Drags one of the eight handles (RectHandles.h) of a shape or blur: Shift keeps its aspect, Alt its middle.
// Its edges come into line with `targets` within `tolerance`, unless Ctrl or Shift is held.
class ResizingGesture final : public CanvasGesture {
public:
    using Surroundings = AlignmentSurroundings;

    // `start` is where the press was, at or beside the handle.
    ResizingGesture(ScreenshotAnnotation annotation, int handle, QPointF start, Surroundings surroundings);

    [[nodiscard]] CanvasDraft drag(QPointF pointer, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QString actionName() const override;

private:
    const ScreenshotAnnotation m_annotation;
    const int m_handle;
    const Surroundings m_surroundings;
    HandleGrip m_grip;
};

} // namespace tembra
