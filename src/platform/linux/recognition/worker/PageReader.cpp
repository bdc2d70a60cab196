#include "platform/linux/recognition/worker/PageReader.h"

#include "platform/linux/recognition/worker/Doubt.h"
#include "platform/linux/recognition/worker/InkPicture.h"
#include "platform/linux/recognition/worker/ReadingOrder.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

namespace tembra::recognition {

namespace {

constexpr int mostEngines = 4;
// Less than the program waits: of a picture that is full of what looks like text a part is better than
// nothing.
constexpr std::chrono::seconds mostTime(40);

int engineCount() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, mostEngines);
}

// Every piece is read in the same height, so its length counts.
double effort(const TextSegment &segment) {
    return static_cast<double>(segment.box.width()) / segment.box.height();
}

} // namespace

PageReader::PageReader(std::string languages)
    : m_languages(std::move(languages)), m_engines(static_cast<size_t>(engineCount())) {}

tl::expected<std::vector<ReadLine>, ReadingFault> PageReader::read(const GreyPicture &grey) {
    const GreyPicture ink = inkPicture(grey);
    std::vector<TextSegment> segments = textSegments(ink);
    // No engine is to be left with a long one at the end.
    std::ranges::stable_sort(segments, std::ranges::greater(), effort);
    const auto end = std::chrono::steady_clock::now() + mostTime;
    std::vector<std::optional<ReadLine>> read(segments.size());
    std::atomic<size_t> next = 0;
    const auto work = [&](std::unique_ptr<TextEngine> &engine) {
        if (!engine)
            engine = std::make_unique<TextEngine>(m_languages);
        for (size_t i = next++; engine->isUsable() && i < segments.size(); i = next++)
            read[i] = std::chrono::steady_clock::now() < end ? engine->read(ink, segments[i]) : ReadLine();
    };
    {
        std::vector<std::jthread> others;
        for (size_t i = 1; i < std::min(segments.size(), m_engines.size()); ++i)
            others.emplace_back(work, std::ref(m_engines[i]));
        work(m_engines.front());
    }
    if (!m_engines.front()->isUsable())
        return tl::unexpected(ReadingFault::noLanguage);
    std::vector<ReadLine> lines;
    for (std::optional<ReadLine> &line : read) {
        if (!line)
            return tl::unexpected(ReadingFault::unusable);
        leaveOutDoubtful(*line);
        if (!line->empty())
            lines.push_back(std::move(*line));
    }
    return inReadingOrder(std::move(lines));
}

} // namespace tembra::recognition
