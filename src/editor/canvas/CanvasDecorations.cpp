#include "editor/canvas/CanvasDecorations.h"

#include "controls/Palette.h"
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

using Kind = ScreenshotAnnotation::Kind;

// The handles of arrows, lines and rectangles lie on what is drawn, and show alone that it is selected.
bool hasFrame(const ScreenshotAnnotation &annotation, bool isAlone) {
    return !isAlone || (annotation.kind != Kind::arrow && annotation.kind != Kind::line &&
                        annotation.kind != Kind::rectangle);
}

// Beside the stroke of a rectangle, whose colour is to be seen.
QRectF frameOf(const ScreenshotAnnotation &annotation) {
    if (annotation.kind == Kind::rectangle)
        return annotation.bounds();
    return annotation.hasRectHandles() ? annotation.shapeRect() : annotation.path().boundingRect();
}

} // namespace

void CanvasDecorations::drawSelection(QPainter &painter, const CanvasViewport &viewport,
                                      std::span<const ScreenshotAnnotation> selected) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ScreenshotAnnotation &annotation : selected) {
        if (!annotation.isDrawable() || !hasFrame(annotation, selected.size() == 1))
            continue;
        const double gap = annotation.hasRectHandles() ? 0 : 3;
        drawFrame(painter, grown(viewport.toView(frameOf(annotation)), gap));
    }
    if (selected.size() != 1)
        return;
    for (const CanvasTarget::Handle &handle : CanvasTarget::handlesOf(selected.front(), viewport.zoom()))
        drawHandle(painter, viewport.toView(handle.position));
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
