#pragma once

#include "editor/model/EditorText.h"

#include <QGlyphRun>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTextOption>

#include <vector>

namespace tembra {

// How a text annotation lies in its box: what the painter draws and an editor of the text must show the same
// way. A value; any thread. Box space: pixels of the image from the top left of the box.
class AnnotationText {
public:
    struct Line {
        // As wide as what is written, as high as the line.
        QRectF rect;
        double baseline = 0;
        // What it holds of the string.
        qsizetype start = 0;
        qsizetype length = 0;
    };

    // Between the box and the text, on the left and right, and above and below.
    [[nodiscard]] static double horizontalPadding(double fontSize) { return fontSize * 0.7; }
    [[nodiscard]] static double verticalPadding(double fontSize) { return fontSize * 0.36; }
    [[nodiscard]] static double cornerRadius(double fontSize) { return fontSize * 0.38; }

    // Between words, or anywhere in a paragraph with a word that never ends.
    [[nodiscard]] static QTextOption::WrapMode wrapMode(const QString &paragraph);

    // Lays out a valid text. Lines end at line breaks and where they would be wider than `maximumWidth`,
    // which the padding is no part of: between words, and within a word that is wider than that. Of a text
    // that is higher than any picture the rest is left out.
    explicit AnnotationText(EditorText text);

    // Of the box, padding included: no wider than its widest line needs.
    [[nodiscard]] QSizeF size() const { return m_size; }
    [[nodiscard]] const std::vector<Line> &lines() const { return m_lines; }
    // The box at a place, its corners rounded.
    [[nodiscard]] QPainterPath box(QPointF topLeft) const;
    // The glyphs of the lines that a part of the box shows; their positions are box space divided by
    // `glyphScale`. To be used in the thread that asked.
    [[nodiscard]] std::vector<QGlyphRun> glyphRuns(const QRectF &visible) const;
    [[nodiscard]] double glyphScale() const { return m_scale; }

private:
    struct Paragraph {
        qsizetype start = 0;
        qsizetype length = 0;
        std::size_t firstLine = 0;
        std::size_t lineCount = 0;
    };

    [[nodiscard]] std::vector<Paragraph> split() const;
    void addLines(Paragraph &paragraph, double &y);
    void align();

    EditorText m_text;
    // Type comes in whole pixel sizes; from there to the exact size.
    int m_pixelSize = 1;
    double m_scale = 1;
    QSizeF m_size;
    std::vector<Paragraph> m_paragraphs;
    std::vector<Line> m_lines;
    std::vector<bool> m_isRightToLeft;
};

} // namespace tembra
