#pragma once

#include <QGlyphRun>
#include <QHash>
#include <QPainterPath>
#include <QRawFont>

#include <vector>

namespace tembra {

// Collects the outlines of glyphs, taking each from its font only once. Glyphs that bring their own colours
// have no outlines and are kept apart. Used in one thread.
class GlyphOutlines {
public:
    void add(const QGlyphRun &run);
    // Those added since it was last taken, to be filled by nonzero winding.
    [[nodiscard]] QPainterPath take();
    [[nodiscard]] qsizetype count() const { return m_count; }
    [[nodiscard]] const std::vector<QGlyphRun> &colored() const { return m_colored; }

private:
    struct Font {
        QRawFont font;
        bool hasColor = false;
        QHash<quint32, QPainterPath> outlines;
    };

    static const QPainterPath &outline(Font &font, quint32 glyph);
    Font &known(const QRawFont &font);

    std::vector<Font> m_fonts;
    QPainterPath m_path;
    qsizetype m_count = 0;
    std::vector<QGlyphRun> m_colored;
};

} // namespace tembra
