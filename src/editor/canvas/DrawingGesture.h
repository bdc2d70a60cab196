#pragma once

#include "editor/canvas/CanvasGesture.h"

namespace tembra {

// Draws an arrow, a line, a shape or a blur from where the press was to where the pointer is. Shift keeps
// lines at multiples of 45° and rectangles square, Alt draws from the middle. It stays within `limits`.
class DrawingGesture final : public CanvasGesture {
public:
    // Less than `leastLength` is a click, which draws nothing; nor is there a shape or blur that is no pixel
    // wide or high.
    DrawingGesture(ScreenshotAnnotation prototype, QPointF start, const QRectF &limits, double leastLength);

    [[nodiscard]] CanvasDraft drag(QPointF point, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QString actionName() const override;

private:
    ScreenshotAnnotation m_annotation;
    const QPointF m_start;
    const QRectF m_limits;
    const double m_leastLength;
};

} // namespace tembra
