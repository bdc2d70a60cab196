#pragma once

#include "editor/canvas/CanvasGesture.h"
#include "editor/canvas/HandleGrip.h"

namespace tembra {

// Drags one of the points of an arrow or a line, as editingPoints() numbers them: an end, which Shift keeps
// at a multiple of 45° from the other, or the middle, which bends an arrow and straightens it near its
// chord; or the right edge of a text, which says where it wraps.
class PointGesture final : public CanvasGesture {
public:
    // `start` is where the press was, at or beside the point. Within `straightening` of the middle of its
    // chord an arrow is straight.
    PointGesture(ScreenshotAnnotation annotation, std::size_t index, QPointF start, const QRectF &limits,
                 double straightening);

    [[nodiscard]] CanvasDraft drag(QPointF pointer, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QString actionName() const override;

private:
    [[nodiscard]] QPointF constrained(QPointF point) const;
    [[nodiscard]] ScreenshotAnnotation bent(QPointF point) const;

    const ScreenshotAnnotation m_annotation;
    const std::size_t m_index;
    const QRectF m_limits;
    const double m_straightening;
    HandleGrip m_grip;
};

} // namespace tembra
