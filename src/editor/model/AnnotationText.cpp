#include "editor/model/AnnotationText.h"

#include "editor/model/AnnotationFont.h"

#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tembra {

namespace {

// Twice the height of the largest picture.
constexpr double highest = 65'536;

// Whether a line can nowhere end for very long. To break such a word Qt looks for its end at every line. It
// is looked for in pieces, as some scripts are quick to take apart only in those.
bool hasEndlessWord(const QString &paragraph) {
    constexpr qsizetype pieceSize = 1'000;
    for (qsizetype start = 0; start + pieceSize <= paragraph.size(); start += pieceSize) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, paragraph.mid(start, pieceSize));
        if (finder.toNextBoundary() >= pieceSize)
            return true;
    }
    return false;
}

QTextOption wrapping(const QString &paragraph, int pixelSize) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(AnnotationText::wrapMode(paragraph));
    option.setUseDesignMetrics(true);
    option.setTabStopDistance(pixelSize * 2.0);
    return option;
}

// Breaks a paragraph into lines, all at the same place: where they lie is for the box to say.
void breakLines(QTextLayout &layout, double width, double height) {
    layout.beginLayout();
    while (height > 0) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
        line.setPosition(QPointF());
        height -= line.height();
    }
    layout.endLayout();
}

QString normalised(QString string) {
    string.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar lineBreak :
         {QChar(u'\r'), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        string.replace(lineBreak, QChar(u'\n'));
    return string;
}

} // namespace

QTextOption::WrapMode AnnotationText::wrapMode(const QString &paragraph) {
    return hasEndlessWord(paragraph) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere;
}

AnnotationText::AnnotationText(EditorText text)
    : m_text(std::move(text)),
      m_pixelSize(std::max(1, qRound(m_text.fontSize))),
      m_scale(m_text.fontSize / m_pixelSize) {
    m_text.string = normalised(m_text.string);
    m_paragraphs = split();
    double y = 0;
    for (Paragraph &paragraph : m_paragraphs) {
        if (y < highest)
            addLines(paragraph, y);
    }
    const double padding = verticalPadding(m_text.fontSize);
    m_size.setHeight(y + 2 * padding);
    align();
}

std::vector<AnnotationText::Paragraph> AnnotationText::split() const {
    std::vector<Paragraph> result;
    for (qsizetype start = 0; start <= m_text.string.size();) {
        const qsizetype found = m_text.string.indexOf(u'\n', start);
        const qsizetype end = found < 0 ? m_text.string.size() : found;
        result.push_back({.start = start, .length = end - start});
        start = end + 1;
    }
    return result;
}

void AnnotationText::addLines(Paragraph &paragraph, double &y) {
    paragraph.firstLine = m_lines.size();
    QTextLayout layout(m_text.string.mid(paragraph.start, paragraph.length), annotationFont(m_pixelSize));
    layout.setTextOption(wrapping(layout.text(), m_pixelSize));
    breakLines(layout, m_text.maximumWidth / m_scale, (highest - y) / m_scale);
    const bool isRightToLeft = layout.text().isRightToLeft();
    for (int index = 0; index < layout.lineCount(); ++index) {
        const QTextLine line = layout.lineAt(index);
        const QRectF natural = line.naturalTextRect();
        m_lines.push_back(
            {.rect = {natural.left() * m_scale, y, natural.width() * m_scale, line.height() * m_scale},
             .baseline = y + line.ascent() * m_scale,
             .start = paragraph.start + line.textStart(),
             .length = line.textLength()});
        m_isRightToLeft.push_back(isRightToLeft);
        y += line.height() * m_scale;
    }
    paragraph.lineCount = m_lines.size() - paragraph.firstLine;
}

// Puts every line at the side where it begins.
void AnnotationText::align() {
    double widest = 0;
    for (const Line &line : m_lines)
        widest = std::max(widest, line.rect.width());
    const QPointF padding(horizontalPadding(m_text.fontSize), verticalPadding(m_text.fontSize));
    m_size.setWidth(widest + 2 * padding.x());
    for (std::size_t index = 0; index < m_lines.size(); ++index) {
        Line &line = m_lines[index];
        const double indent = m_isRightToLeft[index] ? widest - line.rect.width() : 0;
        line.rect.moveTopLeft({padding.x() + indent, padding.y() + line.rect.top()});
        line.baseline += padding.y();
    }
}

QPainterPath AnnotationText::box(QPointF topLeft) const {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const double radius = std::min(cornerRadius(m_text.fontSize), m_size.height() / 2);
    path.addRoundedRect(QRectF(topLeft, m_size), radius, radius);
    return path;
}

std::vector<QGlyphRun> AnnotationText::glyphRuns(const QRectF &visible) const {
    std::vector<QGlyphRun> result;
    const auto isSeen = [&](const Line &line) {
        return line.rect.bottom() >= visible.top() && line.rect.top() <= visible.bottom();
    };
    for (const Paragraph &paragraph : m_paragraphs) {
        const auto first = m_lines.begin() + static_cast<std::ptrdiff_t>(paragraph.firstLine);
        const auto end = first + static_cast<std::ptrdiff_t>(paragraph.lineCount);
        if (paragraph.length == 0 || std::none_of(first, end, isSeen))
            continue;
        QTextLayout layout(m_text.string.mid(paragraph.start, paragraph.length), annotationFont(m_pixelSize));
        layout.setTextOption(wrapping(layout.text(), m_pixelSize));
        breakLines(layout, m_text.maximumWidth / m_scale,
                   (visible.bottom() - first->rect.top()) / m_scale + m_text.fontSize);
        for (auto line = first; line != end; ++line) {
            if (!isSeen(*line))
                continue;
            QTextLine laidOut = layout.lineAt(static_cast<int>(line - first));
            const QPointF place = line->rect.topLeft() / m_scale;
            laidOut.setPosition({place.x() - laidOut.naturalTextRect().left(), place.y()});
            for (const QGlyphRun &run : laidOut.glyphRuns())
                result.push_back(run);
        }
    }
    return result;
}

} // namespace tembra
