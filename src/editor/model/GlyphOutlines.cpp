#include "editor/model/GlyphOutlines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tembra {

namespace {

bool hasColorGlyphs(const QRawFont &font) {
    return std::ranges::any_of(std::array{"CBDT", "COLR", "sbix", "SVG "},
                               [&](const char *table) { return !font.fontTable(table).isEmpty(); });
}

} // namespace

void GlyphOutlines::add(const QGlyphRun &run) {
    Font &font = known(run.rawFont());
    if (font.hasColor) {
        m_colored.push_back(run);
        return;
    }
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype at = 0; at < glyphs.size(); ++at)
        m_path.addPath(outline(font, glyphs[at]).translated(positions[at]));
    m_count += glyphs.size();
}

QPainterPath GlyphOutlines::take() {
    QPainterPath path = std::exchange(m_path, {});
    m_count = 0;
    path.setFillRule(Qt::WindingFill);
    return path;
}

const QPainterPath &GlyphOutlines::outline(Font &font, quint32 glyph) {
    auto found = font.outlines.find(glyph);
    if (found == font.outlines.end())
        found = font.outlines.insert(glyph, font.font.pathForGlyph(glyph));
    return *found;
}

GlyphOutlines::Font &GlyphOutlines::known(const QRawFont &font) {
    const auto found = std::ranges::find(m_fonts, font, &Font::font);
    if (found != m_fonts.end())
        return *found;
    return m_fonts.emplace_back(Font{font, hasColorGlyphs(font), {}});
}

} // namespace tembra
