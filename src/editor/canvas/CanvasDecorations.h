#pragma once

#include "editor/canvas/CanvasDraft.h"
#include "editor/canvas/CanvasViewport.h"

#include <QPainter>

#include <optional>
#include <span>

namespace tembra {

// What the canvas shows on top of the picture and never becomes part of it. View space.
struct CanvasDecorations {
    // The frame and the handles of an annotation that is selected alone.
    static void drawSelected(QPainter &painter, const CanvasViewport &viewport,
                             const ScreenshotAnnotation &annotation);
    // The frames of several. Image space.
    static void drawFrames(QPainter &painter, const CanvasViewport &viewport, std::span<const QRectF> frames);
    // Around an annotation. Image space.
    [[nodiscard]] static QRectF frameOf(const ScreenshotAnnotation &annotation);
    // Guides and the band of a draft.
    static void drawDraft(QPainter &painter, const CanvasViewport &viewport, const CanvasDraft &draft);
    static void drawWord(QPainter &painter, const CanvasViewport &viewport, const QRectF &word);
    // Everything that the above paint beyond the annotations' own bounds, in points.
    static constexpr double reach = 10;
};

} // namespace tembra
