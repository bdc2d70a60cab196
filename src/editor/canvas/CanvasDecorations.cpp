#include "editor/canvas/CanvasDecorations.h"

#include "controls/Palette.h"
#include "editor/canvas/AnnotationEditing.h"
#include "editor/canvas/CanvasTarget.h"
#include "editor/model/GrownRect.h"

namespace tembra {

namespace {

constexpr double handleRadius = 4.5;
constexpr QColor guideColor{255, 64, 160};

void drawFrame(QPainter &painter, const QRectF &frame) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 170), 2.5));
    painter.drawRect(frame);
    painter.setPen(QPen(palette::accent, 1.25));
    painter.drawRect(frame);
}

void drawHandle(QPainter &painter, QPointF center) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawEllipse(center + QPointF(0, 0.5), handleRadius + 1, handleRadius + 1);
    painter.setPen(QPen(palette::accent, 1.5));
    painter.setBrush(Qt::white);
    painter.drawEllipse(center, handleRadius, handleRadius);
}

} // namespace

QRectF CanvasDecorations::frameOf(const ScreenshotAnnotation &annotation) {
    // Beside the stroke of a rectangle, whose colour is to be seen.
    if (annotation.kind == ScreenshotAnnotation::Kind::rectangle)
        return annotation.bounds();
    return annotationEditing::alignmentRect(annotation);
}

// Arrows and lines have the handles at their ends to show that they are selected, rectangles those along
// their sides: a frame would hide what colour they have.
void CanvasDecorations::drawSelected(QPainter &painter, const CanvasViewport &viewport,
                                     const ScreenshotAnnotation &annotation) {
    if (!annotation.isDrawable())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const bool showsItself =
        !annotation.editingPoints().empty() || annotation.kind == ScreenshotAnnotation::Kind::rectangle;
    if (!showsItself) {
        const double gap = annotation.hasRectHandles() ? 0 : 3;
        drawFrame(painter, grown(viewport.toView(frameOf(annotation)), gap));
    }
    for (const CanvasTarget::Handle &handle : CanvasTarget::handlesOf(annotation, viewport.zoom()))
        drawHandle(painter, viewport.toView(handle.position));
}

// There may be hundreds of them: strips are quick to fill.
void CanvasDecorations::drawFrames(QPainter &painter, const CanvasViewport &viewport,
                                   std::span<const QRectF> frames) {
    for (const QRectF &frame : frames) {
        const QRectF rect = grown(viewport.toView(frame), 3);
        painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), 1), palette::accent);
        painter.fillRect(QRectF(rect.left(), rect.bottom() - 1, rect.width(), 1), palette::accent);
        painter.fillRect(QRectF(rect.left(), rect.top(), 1, rect.height()), palette::accent);
        painter.fillRect(QRectF(rect.right() - 1, rect.top(), 1, rect.height()), palette::accent);
    }
}

void CanvasDecorations::drawDraft(QPainter &painter, const CanvasViewport &viewport,
                                  const CanvasDraft &draft) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(guideColor, 1));
    for (const QLineF &line : draft.guides)
        painter.drawLine(viewport.toView(line.p1()), viewport.toView(line.p2()));
    if (!draft.band)
        return;
    painter.setPen(QPen(palette::accent, 1));
    painter.setBrush(palette::selection);
    painter.drawRect(viewport.toView(*draft.band));
}

void CanvasDecorations::drawWord(QPainter &painter, const CanvasViewport &viewport, const QRectF &word) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette::accent, 1.5));
    painter.setBrush(QColor(59, 130, 246, 50));
    painter.drawRoundedRect(grown(viewport.toView(word), 2), 3, 3);
}

} // namespace tembra
