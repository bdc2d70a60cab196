#include "platform/linux/recognition/worker/TextEngine.h"

#include "platform/linux/recognition/worker/PixOwner.h"

#include <cmath>
#include <cstdlib>
#include <tesseract/resultiterator.h>
#include <utility>

namespace tembra::recognition {

namespace {

double parameter(const char *name, double value) {
    const char *const text = std::getenv(name);
    return text ? std::atof(text) : value;
}

// Ink is never light here: no second look at what was read badly.
constexpr const char *neverInverted = "0";

// What is cut out of the picture for a segment, dark on white.
struct Cutting {
    PixOwner picture;
    PixelBox box;
    double scale = 1;
};

PixelBox boxAround(const TextSegment &segment) {
    const double core = segment.coreBottom - segment.coreTop;
    const double height = segment.box.height();
    // A line without tall letters or tails is not to be taken for a large one.
    const double missing = std::max(0.0, parameter("P_MIN", 1.8) * core - height);
    const double above = std::clamp(0.5 * core - (segment.coreTop - segment.box.top), 0.0, missing);
    const double margin = parameter("P_MARGIN", 0.15) * std::max(height, core) + 1;
    const auto wide = static_cast<int>(std::lround(parameter("P_WIDE", 10) + parameter("P_WIDEM", 0.15) * std::max(height, core)));
    return {segment.box.left - wide, segment.box.top - static_cast<int>(std::lround(above + margin)),
            segment.box.right + wide, segment.box.bottom + static_cast<int>(std::lround(missing - above + margin))};
}

Cutting cuttingOf(const GreyPicture &ink, const TextSegment &segment) {
    Cutting cutting{{}, boxAround(segment), 1};
    const PixelBox &box = cutting.box;
    PixOwner picture(pixCreate(box.width(), box.height(), 8));
    if (!picture)
        return cutting;
    // As dark as ink gets here.
    int strongest = 1;
    for (int y = segment.box.top; y < segment.box.bottom; ++y)
        strongest = std::max<int>(strongest, *std::max_element(ink.row(y) + segment.box.left,
                                                               ink.row(y) + segment.box.right));
    (void)pixSetAllArbitrary(picture.get(), 255);
    const int reach = 2;
    for (int y = std::max(0, segment.box.top - reach); y < std::min(ink.height, segment.box.bottom + reach); ++y) {
        l_uint32 *const line = pixGetData(picture.get()) + std::ptrdiff_t{y - box.top} * pixGetWpl(picture.get());
        for (int x = std::max(0, segment.box.left - reach); x < std::min(ink.width, segment.box.right + reach); ++x) {
            if (y >= box.top && y < box.bottom && x >= box.left && x < box.right)
                SET_DATA_BYTE(line, x - box.left, 255 - std::min(255, ink.row(y)[x] * 255 / strongest));
        }
    }
    cutting.scale = parameter("P_HEIGHT", 48) / box.height();
    const auto scale = static_cast<float>(cutting.scale);
    cutting.picture.reset(pixScale(picture.get(), scale, scale));
    return cutting;
}

} // namespace

TextEngine::TextEngine(const std::string &languages) {
    m_isUsable = m_engine.Init(nullptr, languages.c_str(), tesseract::OEM_LSTM_ONLY) == 0;
    if (!m_isUsable)
        return;
    // What it says of the data is for the log, what it says of each picture is not.
    m_engine.SetVariable("debug_file", "/dev/null");
    m_engine.SetPageSegMode(parameter("P_RAW", 0) != 0 ? tesseract::PSM_RAW_LINE : tesseract::PSM_SINGLE_LINE);
    m_engine.SetVariable("invert_threshold", neverInverted);
}

std::optional<ReadLine> TextEngine::read(const GreyPicture &ink, const TextSegment &segment) {
    const Cutting cutting = cuttingOf(ink, segment);
    if (!cutting.picture)
        return std::nullopt;
    m_engine.SetImage(cutting.picture.get());
    m_engine.SetSourceResolution(static_cast<int>(parameter("P_RES", 200)));
    if (m_engine.Recognize(nullptr) != 0)
        return std::nullopt;
    ReadLine line;
    const std::unique_ptr<tesseract::ResultIterator> at(m_engine.GetIterator());
    if (!at)
        return line;
    do {
        if (at->Empty(tesseract::RIL_WORD))
            continue;
        int left = 0;
        int top = 0;
        int right = 0;
        int bottom = 0;
        const std::unique_ptr<char[]> text(at->GetUTF8Text(tesseract::RIL_WORD));
        if (!text || !at->BoundingBox(tesseract::RIL_WORD, &left, &top, &right, &bottom))
            continue;
        std::string word(text.get());
        std::erase_if(word, [](char c) { return c == '\n' || c == '\r' || c == ' '; });
        if (word.empty())
            continue;
        const auto x = [&](int pixel) { return pixel / cutting.scale + cutting.box.left; };
        line.push_back({std::move(word),
                        {x(left), double(segment.box.top), x(right), double(segment.box.bottom)},
                        at->Confidence(tesseract::RIL_WORD)});
        if (std::getenv("P_SHOW"))
            std::fprintf(stderr, "%5.1f %s  [%d %d %d %d]\n", double(at->Confidence(tesseract::RIL_WORD)),
                         line.back().text.c_str(), segment.box.left, segment.box.top, segment.box.right,
                         segment.box.bottom);
    } while (at->Next(tesseract::RIL_WORD));
    return line;
}

} // namespace tembra::recognition
