#include "recognition/model/OCRText.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <optional>
#include <span>

namespace tembra {

namespace {

using Line = TextRecognizer::Line;

// Of the height of a line: a wider gap may stand out, one as wide as the second always does, and lines that
// begin further apart begin anew.
constexpr double sectionGap = 0.9;
constexpr double widestGap = 4;
constexpr double indent = 1.2;
// Of the next gap: entries of a list may be far apart, but all alike.
constexpr double standingOut = 1.4;
// Letters of one paragraph are of one size; what rises above and hangs below them differs.
constexpr double mostGrowth = 1.6;

QRectF boxOf(const Line &line) {
    return std::accumulate(
        line.words.begin(), line.words.end(), QRectF(),
        [](const QRectF &box, const TextRecognizer::Word &word) { return box | word.box; });
}

// Of scripts that do without spaces between words, and their punctuation.
bool isUnspaced(char32_t letter) {
    switch (QChar::script(letter)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
        return true;
    default:
        break;
    }
    const bool isCjkSign = (letter >= 0x3000 && letter <= 0x303f) || letter == 0x30fb || letter == 0x30fc;
    const bool isFullWidth = letter >= 0xff00 && letter <= 0xff65;
    return isCjkSign || isFullWidth;
}

char32_t firstOf(const QString &text) {
    const QChar first = text.front();
    const bool isPair = first.isHighSurrogate() && text.size() > 1;
    return isPair ? QChar::surrogateToUcs4(first, text.at(1)) : first.unicode();
}

char32_t lastOf(const QString &text) {
    const QChar last = text.back();
    const bool isPair = last.isLowSurrogate() && text.size() > 1;
    return isPair ? QChar::surrogateToUcs4(text.at(text.size() - 2), last) : last.unicode();
}

bool needsSpace(const QString &before, const QString &after) {
    return !isUnspaced(lastOf(before)) || !isUnspaced(firstOf(after));
}

void append(QString &text, const QString &more) {
    if (!text.isEmpty() && !more.isEmpty() && needsSpace(text, more))
        text += u' ';
    text += more;
}

QString stringOf(const Line &line) {
    QString text;
    for (const TextRecognizer::Word &word : line.words)
        append(text, word.text);
    return text;
}

// A word that is cut at the end of a line goes on without a space; its hyphen stays, since it may be its own.
void appendLine(QString &text, const QString &line) {
    const bool isCut = text.size() > 1 && text.endsWith(u'-') && text.at(text.size() - 2).isLetter() &&
                       !line.isEmpty() && line.front().isLower();
    if (isCut)
        text += line;
    else
        append(text, line);
}

bool isListItem(const Line &line) {
    static const QRegularExpression mark(
        QStringLiteral("^(?:[-–—*•◦▪‣·+>]|\\(?(?:\\d{1,3}|[A-Za-z])[.)]|\\[[ xX]\\])$"));
    return line.words.size() > 1 && mark.match(line.words.front().text).hasMatch();
}

// The first word of the next line would have had room in this one: the line was ended on purpose.
bool hasRoomFor(const QRectF &line, const TextRecognizer::Word &word, double rightEdge) {
    return line.right() + line.height() / 2 + word.box.width() < rightEdge;
}

// The lines stand below each other in one column.
bool isBelow(const QRectF &before, const QRectF &box) {
    return box.top() >= before.center().y() && box.left() <= before.right() && box.right() >= before.left();
}

double gapBetween(const QRectF &before, const QRectF &box) {
    return std::max(0.0, box.top() - before.bottom());
}

double heightOf(const QRectF &first, const QRectF &second) {
    return std::max(1.0, std::min(first.height(), second.height()));
}

// The smaller gap next to the one above line `i`; nothing where no line stands there.
std::optional<double> nextGap(std::span<const QRectF> boxes, size_t i) {
    std::optional<double> gap;
    if (i >= 2 && isBelow(boxes[i - 2], boxes[i - 1]))
        gap = gapBetween(boxes[i - 2], boxes[i - 1]);
    if (i + 1 < boxes.size() && isBelow(boxes[i], boxes[i + 1])) {
        const double below = gapBetween(boxes[i], boxes[i + 1]);
        gap = std::min(gap.value_or(below), below);
    }
    return gap;
}

bool beginsSection(std::span<const QRectF> boxes, size_t i) {
    const double height = heightOf(boxes[i - 1], boxes[i]);
    const double gap = gapBetween(boxes[i - 1], boxes[i]);
    if (!isBelow(boxes[i - 1], boxes[i]) || gap > widestGap * height)
        return true;
    return gap > sectionGap * height && gap > standingOut * nextGap(boxes, i).value_or(0);
}

OCRLineStart startOf(std::span<const QRectF> boxes, size_t i) {
    if (beginsSection(boxes, i))
        return OCRLineStart::section;
    const QRectF &before = boxes[i - 1];
    const double height = heightOf(before, boxes[i]);
    const bool isOtherText = std::max(before.height(), boxes[i].height()) > mostGrowth * height ||
                             std::abs(boxes[i].left() - before.left()) > indent * height ||
                             gapBetween(before, boxes[i]) > sectionGap * height;
    return isOtherText ? OCRLineStart::paragraph : OCRLineStart::continuation;
}

} // namespace

QString OCRText::string(OCRTextLayout layout) const {
    QString text;
    if (layout == OCRTextLayout::oneLine) {
        for (const Line &line : lines)
            appendLine(text, stringOf(line));
        return text;
    }
    QStringList paragraphs;
    const std::vector<OCRLineStart> starts = layout == OCRTextLayout::paragraphs
                                                 ? lineStarts()
                                                 : std::vector(lines.size(), OCRLineStart::paragraph);
    for (size_t i = 0; i < lines.size(); ++i) {
        const QString line = stringOf(lines[i]);
        if (i > 0 && starts[i] == OCRLineStart::continuation) {
            appendLine(paragraphs.last(), line);
            continue;
        }
        if (i > 0 && starts[i] == OCRLineStart::section)
            paragraphs += QString();
        paragraphs += line;
    }
    return paragraphs.join(u'\n');
}

std::vector<OCRLineStart> OCRText::lineStarts() const {
    std::vector<QRectF> boxes;
    for (const Line &line : lines)
        boxes.push_back(boxOf(line));
    std::vector<OCRLineStart> starts(lines.size(), OCRLineStart::section);
    for (size_t i = 1; i < lines.size(); ++i)
        starts[i] = startOf(boxes, i);
    // Within what stands together, sentences are broken at the right edge only.
    for (size_t first = 0; first < lines.size();) {
        size_t end = first + 1;
        while (end < lines.size() && starts[end] != OCRLineStart::section)
            ++end;
        double rightEdge = 0;
        for (size_t i = first; i < end; ++i)
            rightEdge = std::max(rightEdge, boxes[i].right());
        for (size_t i = first + 1; i < end; ++i) {
            if (isListItem(lines[i]) || hasRoomFor(boxes[i - 1], lines[i].words.front(), rightEdge))
                starts[i] = OCRLineStart::paragraph;
        }
        first = end;
    }
    return starts;
}

int OCRText::wordCount() const {
    return std::accumulate(lines.begin(), lines.end(), 0, [](int count, const Line &line) {
        return count + static_cast<int>(line.words.size());
    });
}

} // namespace tembra
