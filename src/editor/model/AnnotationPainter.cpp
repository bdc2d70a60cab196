#include "editor/model/AnnotationPainter.h"

#include "editor/model/AnnotationOutline.h"
#include "editor/model/AnnotationText.h"
#include "editor/model/ContrastColor.h"
#include "editor/model/GlyphOutlines.h"
#include "editor/model/MarkPainting.h"
#include "editor/model/NumberBadge.h"

#include <QPainterPathStroker>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

// So few at once that the rasteriser is quick.
constexpr qsizetype glyphsAtOnce = 120;

QPainterPath edgeOf(const QPainterPath &letters, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(2 * width);
    stroker.setJoinStyle(Qt::MiterJoin);
    stroker.setMiterLimit(1.5);
    return stroker.createStroke(letters);
}

Mark letterMark(const ScreenshotAnnotation &annotation, const QPainterPath &letters) {
    return {.shape = letters,
            .color = annotation.color,
            .haloWidth = haloWidth(annotation),
            .haloStrength = 1 - annotation.text->background.a,
            .grown = [letters](double growth) { return edgeOf(letters, growth); }};
}

void drawText(const ScreenshotAnnotation &annotation, QPainter &painter) {
    const EditorText &text = *annotation.text;
    const AnnotationText layout(text);
    const QPointF topLeft = annotation.points[0].toPointF();
    const QRectF box(topLeft, layout.size());
    const QRectF visible = box & visibleRect(painter);
    if (visible.isEmpty())
        return;
    painter.save();
    Mark{.shape = layout.box(topLeft), .color = text.background, .grown = {}}.draw(painter);
    // Marks may pile up on a letter without end.
    painter.setClipRect(box, Qt::IntersectClip);
    QTransform toImage = QTransform::fromTranslate(topLeft.x(), topLeft.y());
    toImage.scale(layout.glyphScale(), layout.glyphScale());
    GlyphOutlines outlines;
    std::vector<Mark> marks;
    for (const QGlyphRun &run : layout.glyphRuns(visible.translated(-topLeft))) {
        outlines.add(run);
        if (outlines.count() >= glyphsAtOnce)
            marks.push_back(letterMark(annotation, toImage.map(outlines.take())));
    }
    marks.push_back(letterMark(annotation, toImage.map(outlines.take())));
    for (const Mark &mark : marks)
        mark.drawHalo(painter);
    for (const Mark &mark : marks)
        mark.drawShape(painter);
    painter.setTransform(toImage, true);
    for (const QGlyphRun &run : outlines.colored())
        painter.drawGlyphRun(QPointF(), run);
    painter.restore();
}

void drawNumber(const ScreenshotAnnotation &annotation, QPainter &painter) {
    const NumberBadge badge = NumberBadge::of(*annotation.number, annotation.points[0].toPointF());
    const auto asOpaque = [&](EditorColor color) {
        color.a = annotation.color.a;
        return color;
    };
    Mark{.shape = badge.rim(0),
         .color = asOpaque(rimColor(annotation.color)),
         .haloWidth = haloWidth(annotation),
         .haloStrength = 0.6,
         .grown = [&](double growth) { return badge.rim(growth); }}
        .draw(painter);
    Mark{.shape = badge.outline(), .color = annotation.color, .grown = {}}.draw(painter);
    Mark{.shape = badge.digits, .color = asOpaque(contrasting(annotation.color))}.draw(painter);
}

void draw(const ScreenshotAnnotation &annotation, QPainter &painter) {
    switch (annotation.kind) {
    case Kind::blur:
        return;
    case Kind::text:
        drawText(annotation, painter);
        return;
    case Kind::number:
        drawNumber(annotation, painter);
        return;
    case Kind::arrow:
    case Kind::pencil:
    case Kind::line:
    case Kind::rectangle:
    case Kind::ellipse:
        Mark{.shape = annotationOutline(annotation, 0),
             .color = annotation.color,
             .haloWidth = haloWidth(annotation),
             .grown = [&](double growth) { return annotationOutline(annotation, growth); }}
            .draw(painter);
        return;
    }
}

} // namespace

void drawAnnotations(std::span<const ScreenshotAnnotation> annotations, QPainter &painter,
                     const std::optional<QUuid> &editingTextID) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const ScreenshotAnnotation &annotation : annotations) {
        const bool isEdited = annotation.kind == Kind::text && annotation.id == editingTextID;
        if (annotation.isDrawable() && !isEdited)
            draw(annotation, painter);
    }
    painter.restore();
}

} // namespace tembra
