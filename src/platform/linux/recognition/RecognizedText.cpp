#include "platform/linux/recognition/RecognizedText.h"

#include "platform/linux/recognition/WorkerProtocol.h"

#include <array>
#include <cmath>

namespace tembra {

namespace {

// Beyond any picture.
constexpr double farthest = 1e6;

std::optional<TextRecognizer::Word> wordOf(QByteArrayView line) {
    std::array<double, 4> edges{};
    for (double &edge : edges) {
        const qsizetype space = line.indexOf(' ');
        bool isNumber = false;
        edge = line.first(std::max<qsizetype>(space, 0)).toDouble(&isNumber);
        if (!isNumber || !(std::abs(edge) <= farthest))
            return std::nullopt;
        line = line.sliced(space + 1);
    }
    const auto [left, top, right, bottom] = edges;
    if (line.isEmpty() || right < left || bottom < top)
        return std::nullopt;
    return TextRecognizer::Word{QString::fromUtf8(line), QRectF(left, top, right - left, bottom - top)};
}

} // namespace

std::optional<std::vector<TextRecognizer::Line>> recognizedText(const QByteArray &output) {
    std::vector<TextRecognizer::Line> lines;
    TextRecognizer::Line line;
    QByteArrayView rest(output);
    for (qsizetype end = rest.indexOf('\n'); end >= 0; end = rest.indexOf('\n')) {
        const QByteArrayView text = rest.first(end);
        rest = rest.sliced(end + 1);
        if (text == QByteArrayView(recognition::endMark).chopped(1))
            return rest.isEmpty() && line.words.empty() ? std::optional(std::move(lines)) : std::nullopt;
        if (text.isEmpty()) {
            if (line.words.empty())
                return std::nullopt;
            lines.push_back(std::exchange(line, {}));
            continue;
        }
        auto word = wordOf(text);
        if (!word)
            return std::nullopt;
        line.words.push_back(std::move(*word));
    }
    return std::nullopt;
}

} // namespace tembra
