#pragma once

#include "editor/canvas/CanvasGesture.h"

namespace tembra {

// Hides the words between the press and the pointer.
class WordsGesture final : public CanvasGesture {
public:
    // `prototype` is a blur; `words` are those of the image; a press within `tolerance` of a word means it.
    WordsGesture(ScreenshotAnnotation prototype, QPointF start, std::vector<QRectF> words,
                 const QRectF &limits, double tolerance);

    [[nodiscard]] CanvasDraft drag(QPointF point, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QString actionName() const override;
    [[nodiscard]] bool selects() const override { return false; }

private:
    [[nodiscard]] ScreenshotAnnotation blurOver(std::size_t index, const QRectF &area);

    const ScreenshotAnnotation m_prototype;
    const QPointF m_start;
    const std::vector<QRectF> m_words;
    const QRectF m_limits;
    const double m_tolerance;
    // The ids of the blurs in their order, the same for every draft.
    std::vector<QUuid> m_ids;
};

} // namespace tembra
