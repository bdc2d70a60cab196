#include "shelf/FileNameLayout.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <optional>

namespace tembra {

namespace {

constexpr QChar ellipsis(0x2026);

bool fits(const QString &text, const QFontMetricsF &metrics) {
    return metrics.horizontalAdvance(text.trimmed()) <= FileNameLayout::width;
}

// The largest boundary of the kind up to which the text fits; 0 when not even the first piece does.
qsizetype lastFitting(const QString &text, const QFontMetricsF &metrics,
                      QTextBoundaryFinder::BoundaryType kind) {
    QTextBoundaryFinder boundaries(kind, text);
    qsizetype last = 0;
    for (qsizetype next = boundaries.toNextBoundary(); next > 0; next = boundaries.toNextBoundary()) {
        if (!fits(text.left(next), metrics))
            break;
        last = next;
    }
    return last;
}

bool isWordStart(const QString &text, qsizetype at) {
    const QChar before = text[at - 1];
    return text[at].isLetterOrNumber() && !before.isLetterOrNumber() && !before.isMark() &&
           !before.isSurrogate();
}

// The last place behind a sign or before the extension that leaves the line half full at least; else 0.
qsizetype lastPart(const QString &text, const QFontMetricsF &metrics) {
    for (qsizetype at = text.size() - 1; at > 0; --at) {
        const bool isBreak = text[at] == u'.' || (isWordStart(text, at) && text[at - 1] != u'.');
        if (isBreak && fits(text.left(at), metrics))
            return metrics.horizontalAdvance(text.left(at)) >= FileNameLayout::width / 2 ? at : 0;
    }
    return 0;
}

// Where the first line ends: between words, else between their parts, else between characters; one that is
// wider than the line stays whole.
qsizetype lineEnd(const QString &text, const QFontMetricsF &metrics) {
    if (const qsizetype end = lastFitting(text, metrics, QTextBoundaryFinder::Line); end > 0)
        return end;
    if (const qsizetype end = lastPart(text, metrics); end > 0)
        return end;
    if (const qsizetype end = lastFitting(text, metrics, QTextBoundaryFinder::Grapheme); end > 0)
        return end;
    return QTextBoundaryFinder(QTextBoundaryFinder::Grapheme, text).toNextBoundary();
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool beginsWithNumber(const QString &text) {
    return isDigit(text.front());
}

bool hasNumber(const QString &text) {
    return std::ranges::any_of(text, isDigit);
}

// The beginning of the text, up to the end of one of its parts, and its extension: some tools put the time
// first and their own sign last.
QString beginning(const QString &text, const QFontMetricsF &metrics) {
    const QString extension = text.mid(text.lastIndexOf(u'.') + 1);
    QString fitting;
    for (qsizetype end = 1; end < text.size(); ++end) {
        const bool endsPart = text[end - 1].isLetterOrNumber() && !text[end].isLetterOrNumber();
        const QString shorter = text.left(end) + ellipsis + extension;
        if (endsPart && fits(shorter, metrics))
            fitting = shorter;
    }
    return fitting;
}

// The end of the text behind an ellipsis. It begins with a word unless that would take much more away than
// must be; the last character always stays.
QString shortened(const QString &text, const QFontMetricsF &metrics) {
    if (fits(text, metrics))
        return text;
    constexpr double leastWidthOfWords = FileNameLayout::width / 2;
    const auto ending = [&](qsizetype start) { return ellipsis + text.mid(start).trimmed(); };
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, text);
    boundaries.toEnd();
    qsizetype start = boundaries.toPreviousBoundary();
    std::optional<qsizetype> wordStart;
    for (qsizetype next = start; next > 0 && fits(ending(next), metrics);
         next = boundaries.toPreviousBoundary()) {
        start = next;
        if (isWordStart(text, start))
            wordStart = start;
    }
    const bool isEnough = wordStart && metrics.horizontalAdvance(ending(*wordStart)) >= leastWidthOfWords;
    QString kept = ending(isEnough ? *wordStart : start);
    if (!beginsWithNumber(text) || hasNumber(kept))
        return kept;
    QString begun = beginning(text, metrics);
    if (begun.isEmpty())
        return kept;
    return begun;
}

// Line ends and tabs are allowed in names and would break the line.
QString printable(QString name) {
    const auto breaksLine = [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
               c == QChar::ParagraphSeparator;
    };
    std::ranges::replace_if(name, breaksLine, QChar(u' '));
    return name.trimmed();
}

} // namespace

QStringList FileNameLayout::lines(const QString &name, const QFontMetricsF &metrics) {
    QStringList result;
    QString rest = printable(name);
    while (result.size() < mostLines - 1 && !rest.isEmpty() && !fits(rest, metrics)) {
        const qsizetype end = lineEnd(rest, metrics);
        result += rest.left(end).trimmed();
        rest = rest.mid(end).trimmed();
    }
    if (!rest.isEmpty())
        result += shortened(rest, metrics);
    return result;
}

} // namespace tembra
