#include "platform/linux/recognition/worker/TextEngine.h"

#include <tesseract/resultiterator.h>
#include <utility>

namespace tembra::recognition {

namespace {

// Tiles of their own thresholds, so that faint text counts beside strong.
constexpr const char *adaptiveThreshold = "1";
// Ink is never light here: no second look at what was read badly.
constexpr const char *neverInverted = "0";

std::optional<ReadWord> currentWord(const tesseract::ResultIterator &at) {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    const std::unique_ptr<char[]> text(at.GetUTF8Text(tesseract::RIL_WORD));
    if (!text || !at.BoundingBox(tesseract::RIL_WORD, &left, &top, &right, &bottom))
        return std::nullopt;
    std::string word(text.get());
    std::erase_if(word, [](char c) { return c == '\n' || c == '\r'; });
    if (word.find_first_not_of(' ') == std::string::npos)
        return std::nullopt;
    return ReadWord{std::move(word), {double(left), double(top), double(right), double(bottom)}};
}

} // namespace

TextEngine::TextEngine(const std::string &languages) {
    m_isUsable = m_engine.Init(nullptr, languages.c_str(), tesseract::OEM_LSTM_ONLY) == 0;
    if (!m_isUsable)
        return;
    // What it says of the data is for the log, what it says of each picture is not.
    m_engine.SetVariable("debug_file", "/dev/null");
    m_engine.SetPageSegMode(tesseract::PSM_SPARSE_TEXT);
    m_engine.SetVariable("thresholding_method", adaptiveThreshold);
    m_engine.SetVariable("invert_threshold", neverInverted);
}

std::optional<std::vector<ReadLine>> TextEngine::read(Pix *ink) {
    constexpr int resolution = 200;
    m_engine.SetImage(ink);
    m_engine.SetSourceResolution(resolution);
    if (m_engine.Recognize(nullptr) != 0)
        return std::nullopt;
    std::vector<ReadLine> lines;
    const std::unique_ptr<tesseract::ResultIterator> at(m_engine.GetIterator());
    if (!at)
        return lines;
    bool isNewLine = true;
    do {
        isNewLine = isNewLine || at->IsAtBeginningOf(tesseract::RIL_TEXTLINE);
        if (at->Empty(tesseract::RIL_WORD))
            continue;
        auto word = currentWord(*at);
        if (!word)
            continue;
        if (std::exchange(isNewLine, false))
            lines.emplace_back();
        lines.back().push_back(std::move(*word));
    } while (at->Next(tesseract::RIL_WORD));
    return lines;
}

} // namespace tembra::recognition
