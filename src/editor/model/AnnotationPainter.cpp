#include "editor/model/AnnotationPainter.h"

#include "editor/model/AnnotationOutline.h"
#include "editor/model/AnnotationText.h"
#include "editor/model/ContrastColor.h"
#include "editor/model/MarkPainting.h"
#include "editor/model/NumberBadge.h"

#include <QHash>
#include <QPainterPathStroker>
#include <QRawFont>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

bool hasColorGlyphs(const QRawFont &font) {
    return std::ranges::any_of(std::array{"CBDT", "COLR", "sbix", "SVG "},
                               [&](const char *table) { return !font.fontTable(table).isEmpty(); });
}

// Collects the outlines of glyphs, taking each from its font only once; glyphs that bring their own colours
// have none and are kept apart.
class GlyphOutlines {
public:
    void add(const QGlyphRun &run) {
        Font &font = known(run.rawFont());
        if (font.hasColor) {
            m_colored.push_back(run);
            return;
        }
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype at = 0; at < glyphs.size(); ++at)
            m_path.addPath(outline(font, glyphs[at]).translated(positions[at]));
    }
    [[nodiscard]] QPainterPath path() const {
        QPainterPath path = m_path;
        path.setFillRule(Qt::WindingFill);
        return path;
    }
    [[nodiscard]] const std::vector<QGlyphRun> &colored() const { return m_colored; }

private:
    struct Font {
        QRawFont font;
        bool hasColor = false;
        QHash<quint32, QPainterPath> outlines;
    };

    static QPainterPath outline(Font &font, quint32 glyph) {
        const auto found = font.outlines.constFind(glyph);
        if (found != font.outlines.cend())
            return *found;
        return *font.outlines.insert(glyph, font.font.pathForGlyph(glyph));
    }

    Font &known(const QRawFont &font) {
        const auto found = std::ranges::find(m_fonts, font, &Font::font);
        if (found != m_fonts.end())
            return *found;
        return m_fonts.emplace_back(Font{font, hasColorGlyphs(font), {}});
    }

    std::vector<Font> m_fonts;
    QPainterPath m_path;
    std::vector<QGlyphRun> m_colored;
};

QPainterPath edgeOf(const QPainterPath &letters, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(2 * width);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(letters);
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
    GlyphOutlines outlines;
    for (const QGlyphRun &run : layout.glyphRuns(visible.translated(-topLeft)))
        outlines.add(run);
    QTransform toImage = QTransform::fromTranslate(topLeft.x(), topLeft.y());
    toImage.scale(layout.glyphScale(), layout.glyphScale());
    const QPainterPath letters = toImage.map(outlines.path());
    Mark{.shape = letters,
         .color = annotation.color,
         .haloWidth = haloWidth(annotation),
         .haloStrength = 1 - text.background.a,
         .grown = [&](double growth) { return edgeOf(letters, growth); }}
        .draw(painter);
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
         .haloStrength = 0.7,
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
