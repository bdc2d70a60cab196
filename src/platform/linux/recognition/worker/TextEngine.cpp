#include "platform/linux/recognition/worker/TextEngine.h"

#include "platform/linux/recognition/worker/PixOwner.h"

#include <cmath>
#include <mutex>
#include <tesseract/resultiterator.h>
#include <utility>

namespace tembra::recognition {

namespace {

// Ink is never light here: no second look at what was read badly.
constexpr const char *neverInverted = "0";

// The height in which a line is given to the engine.
constexpr double cuttingHeight = 72;
// A line without tall letters or tails is not to be taken for a large one: so many times the height of its
// core are shown at least.
constexpr double leastHeight = 2;
constexpr double leastAbove = 0.5;
// Around the ink, in heights of the line and in pixels.
constexpr double margin = 0.15;
constexpr int sideMargin = 8;

// What is cut out of the picture for a segment, dark on white.
struct Cutting {
    PixOwner picture;
    PixelBox box;
    double scale = 1;
};

PixelBox boxAround(const TextSegment &segment) {
    const double core = segment.coreBottom - segment.coreTop;
    const double height = segment.box.height();
    const double missing = std::max(0.0, leastHeight * core - height);
    const double above = std::clamp(leastAbove * core - (segment.coreTop - segment.box.top), 0.0, missing);
    const double around = margin * height;
    const auto side = static_cast<int>(std::lround(sideMargin + around));
    return {segment.box.left - side, segment.box.top - static_cast<int>(std::lround(above + around + 1)),
            segment.box.right + side,
            segment.box.bottom + static_cast<int>(std::lround(missing - above + around + 1))};
}

// As dark as ink gets here is black.
Cutting cuttingOf(const GreyPicture &ink, const TextSegment &segment) {
    Cutting cutting{{}, boxAround(segment), 1};
    const PixelBox &box = cutting.box;
    const PixOwner picture(pixCreate(box.width(), box.height(), 8));
    if (!picture || pixSetAllArbitrary(picture.get(), 255) != 0)
        return cutting;
    const int strongest = std::max(1, segment.strongest);
    // With the soft edges of the letters.
    constexpr int edge = 2;
    const PixelBox shown{std::max({0, box.left, segment.box.left - edge}),
                         std::max({0, box.top, segment.box.top - edge}),
                         std::min({ink.width, box.right, segment.box.right + edge}),
                         std::min({ink.height, box.bottom, segment.box.bottom + edge})};
    for (int y = shown.top; y < shown.bottom; ++y) {
        l_uint32 *const line =
            pixGetData(picture.get()) + std::ptrdiff_t{y - box.top} * pixGetWpl(picture.get());
        for (int x = shown.left; x < shown.right; ++x)
            SET_DATA_BYTE(line, x - box.left, 255 - std::min(255, ink.row(y)[x] * 255 / strongest));
    }
    cutting.scale = cuttingHeight / box.height();
    const auto scale = static_cast<float>(cutting.scale);
    cutting.picture.reset(pixScale(picture.get(), scale, scale));
    return cutting;
}

// Around the ink that the segment has between two columns.
TextBox inkBox(const GreyPicture &ink, const TextSegment &segment, double left, double right) {
    const int from = std::clamp(static_cast<int>(std::lround(left)), segment.box.left, segment.box.right - 1);
    const int to = std::clamp(static_cast<int>(std::lround(right)), from + 1, segment.box.right);
    PixelBox found{to, segment.box.bottom, from, segment.box.top};
    for (int y = segment.box.top; y < segment.box.bottom; ++y) {
        for (int x = from; x < to; ++x) {
            if (ink.row(y)[x] >= segment.threshold)
                found = found.united({x, y, x + 1, y + 1});
        }
    }
    if (found.left >= found.right)
        found = {from, segment.box.top, to, segment.box.bottom};
    return {double(found.left), double(found.top), double(found.right), double(found.bottom)};
}

// What engines say of the data is for the log, what they say of each picture is not. One variable for them
// all, which several threads begin with.
void silence(tesseract::TessBaseAPI &engine) {
    static std::once_flag isSilent;
    std::call_once(isSilent, [&engine] { engine.SetVariable("debug_file", "/dev/null"); });
}

std::string currentText(const tesseract::ResultIterator &at) {
    const std::unique_ptr<char[]> text(at.GetUTF8Text(tesseract::RIL_WORD));
    std::string word(text ? text.get() : "");
    std::erase_if(word, [](char c) { return c == '\n' || c == '\r' || c == ' '; });
    return word;
}

} // namespace

std::vector<std::string> TextEngine::installedLanguages() {
    tesseract::TessBaseAPI engine;
    // It looks for its data where it finds those of one of them, whichever.
    engine.Init(nullptr, nullptr, tesseract::OEM_LSTM_ONLY);
    std::vector<std::string> languages;
    engine.GetAvailableLanguagesAsVector(&languages);
    // Tells how a page is turned, and reads nothing.
    std::erase(languages, "osd");
    return languages;
}

TextEngine::TextEngine(const std::string &languages) {
    m_isUsable = m_engine.Init(nullptr, languages.c_str(), tesseract::OEM_LSTM_ONLY) == 0;
    if (!m_isUsable)
        return;
    silence(m_engine);
    m_engine.SetPageSegMode(tesseract::PSM_SINGLE_LINE);
    m_engine.SetVariable("invert_threshold", neverInverted);
}

std::optional<ReadLine> TextEngine::read(const GreyPicture &ink, const TextSegment &segment) {
    constexpr int resolution = 200;
    const Cutting cutting = cuttingOf(ink, segment);
    if (!cutting.picture)
        return std::nullopt;
    m_engine.SetImage(cutting.picture.get());
    m_engine.SetSourceResolution(resolution);
    if (m_engine.Recognize(nullptr) != 0)
        return std::nullopt;
    ReadLine line;
    const std::unique_ptr<tesseract::ResultIterator> at(m_engine.GetIterator());
    if (!at)
        return line;
    const auto column = [&](int x) { return x / cutting.scale + cutting.box.left; };
    do {
        int left = 0;
        int top = 0;
        int right = 0;
        int bottom = 0;
        if (at->Empty(tesseract::RIL_WORD) ||
            !at->BoundingBox(tesseract::RIL_WORD, &left, &top, &right, &bottom))
            continue;
        if (std::string text = currentText(*at); !text.empty())
            line.push_back({std::move(text), inkBox(ink, segment, column(left), column(right)),
                            at->Confidence(tesseract::RIL_WORD)});
    } while (at->Next(tesseract::RIL_WORD));
    m_engine.Clear();
    return line;
}

} // namespace tembra::recognition
