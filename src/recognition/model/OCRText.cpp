#include "recognition/model/OCRText.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>

namespace tembra {

namespace {

using Line = TextRecognizer::Line;

// Of the height of a line: a wider gap stands out, lines that begin further apart begin anew.
constexpr double sectionGap = 0.9;
constexpr double indent = 1.2;
// Letters of one paragraph are of one size; what rises above and hangs below them differs.
constexpr double mostGrowth = 1.6;

QRectF boxOf(const Line &line) {
    return std::accumulate(
        line.words.begin(), line.words.end(), QRectF(),
        [](const QRectF &box, const TextRecognizer::Word &word) { return box | word.box; });
}

// Chinese and Japanese do without spaces between words.
bool needsSpace(const QString &before, const QString &after) {
    const auto isUnspaced = [](QChar letter) {
        const QChar::Script script = letter.script();
        return script == QChar::Script_Han || script == QChar::Script_Hiragana ||
               script == QChar::Script_Katakana;
    };
    return before.isEmpty() || after.isEmpty() || !isUnspaced(before.back()) || !isUnspaced(after.front());
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

// The lines that stand below each other without a break: their right edge is where sentences are broken.
struct Block {
    std::vector<QRectF> boxes;

    [[nodiscard]] double rightEdge() const {
        return std::ranges::max(boxes, {}, [](const QRectF &box) { return box.right(); }).right();
    }
};

OCRLineStart startAfter(const QRectF &before, const QRectF &box) {
    const double height = std::max(1.0, std::min(before.height(), box.height()));
    const bool isElsewhere = box.top() < before.center().y() ||
                             box.top() - before.bottom() > sectionGap * height ||
                             box.left() > before.right() || box.right() < before.left();
    if (isElsewhere)
        return OCRLineStart::section;
    const bool isOtherText = std::max(before.height(), box.height()) > mostGrowth * height ||
                             std::abs(box.left() - before.left()) > indent * height;
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
        starts[i] = startAfter(boxes[i - 1], boxes[i]);
    // Within what stands together, sentences are broken at the right edge only.
    for (size_t first = 0; first < lines.size();) {
        size_t end = first + 1;
        while (end < lines.size() && starts[end] != OCRLineStart::section)
            ++end;
        const Block block{{boxes.begin() + static_cast<std::ptrdiff_t>(first),
                           boxes.begin() + static_cast<std::ptrdiff_t>(end)}};
        for (size_t i = first + 1; i < end; ++i) {
            if (isListItem(lines[i]) || hasRoomFor(boxes[i - 1], lines[i].words.front(), block.rightEdge()))
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
