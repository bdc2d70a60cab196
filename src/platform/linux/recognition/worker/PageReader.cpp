#include "platform/linux/recognition/worker/PageReader.h"

#include "platform/linux/recognition/worker/InkPicture.h"
#include "platform/linux/recognition/worker/ReadingOrder.h"
#include "platform/linux/recognition/worker/Stripes.h"
#include "platform/linux/recognition/worker/TextEngine.h"

#include <atomic>
#include <thread>

namespace tembra::recognition {

namespace {

using StripeLines = tl::expected<std::vector<ReadLine>, ReadingFault>;

// Letters that are this high on average are read well as they are.
constexpr int readableHeight = 14;
// More than the height of a line.
constexpr int overlap = 48;
constexpr int smallestStripe = 240;
// The engine's time grows with the square of the words that it has before it.
constexpr int largestStripe = 560;
constexpr int mostEngines = 4;
// Grey levels below this are ink.
constexpr int faintestInk = 240;

struct Page {
    PixOwner ink;
    int scale = 1;
};

// Pixels of a dense display are told by the size of its letters.
Page pageOf(Pix *grey) {
    Page page{inkPicture(grey, 1), 2};
    if (page.ink && usualInkHeight(page.ink.get()) >= readableHeight)
        page = {inkPicture(grey, 2), 1};
    return page;
}

int engineCount() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, mostEngines);
}

std::vector<Stripe> stripesOf(Pix *ink) {
    const int height = pixGetHeight(ink);
    const int count = std::max((height + largestStripe - 1) / largestStripe,
                               std::min(height / smallestStripe, engineCount()));
    std::vector<int> rowInk(static_cast<size_t>(height));
    const PixOwner marks(pixThresholdToBinary(ink, faintestInk));
    Numa *counts = marks ? pixCountPixelsByRow(marks.get(), nullptr) : nullptr;
    for (int y = 0; counts && y < height; ++y)
        numaGetIValue(counts, y, &rowInk[static_cast<size_t>(y)]);
    numaDestroy(&counts);
    return stripes(rowInk, std::max(1, count), overlap);
}

// The stripe's part of the page, in the size in which it is read.
PixOwner partOf(const Page &page, const Stripe &stripe) {
    Box *box = boxCreate(0, stripe.top, pixGetWidth(page.ink.get()), stripe.bottom - stripe.top);
    const PixOwner part(pixClipRectangle(page.ink.get(), box, nullptr));
    boxDestroy(&box);
    const auto scale = static_cast<float>(page.scale);
    return PixOwner(part ? pixScale(part.get(), scale, scale) : nullptr);
}

StripeLines readStripe(const Page &page, const Stripe &stripe, TextEngine &engine) {
    const PixOwner part = partOf(page, stripe);
    auto lines = part ? engine.read(part.get()) : std::nullopt;
    if (!lines)
        return tl::unexpected(ReadingFault::unusable);
    const double scale = page.scale;
    for (ReadLine &line : *lines) {
        for (ReadWord &word : line)
            word.box = {word.box.left / scale, word.box.top / scale + stripe.top, word.box.right / scale,
                        word.box.bottom / scale + stripe.top};
    }
    return std::move(*lines);
}

} // namespace

PageReader::PageReader(std::string languages)
    : m_languages(std::move(languages)), m_engines(static_cast<size_t>(engineCount())) {}

tl::expected<std::vector<ReadLine>, ReadingFault> PageReader::read(Pix *grey) {
    const Page page = pageOf(grey);
    if (!page.ink)
        return tl::unexpected(ReadingFault::unusable);
    const std::vector<Stripe> parts = stripesOf(page.ink.get());
    std::vector<StripeLines> read(parts.size(), tl::unexpected(ReadingFault::noLanguage));
    std::atomic<size_t> next = 0;
    const auto work = [&](std::unique_ptr<TextEngine> &engine) {
        if (!engine)
            engine = std::make_unique<TextEngine>(m_languages);
        for (size_t i = next++; engine->isUsable() && i < parts.size(); i = next++)
            read[i] = readStripe(page, parts[i], *engine);
    };
    {
        std::vector<std::jthread> others;
        for (size_t i = 1; i < std::min(parts.size(), m_engines.size()); ++i)
            others.emplace_back(work, std::ref(m_engines[i]));
        work(m_engines.front());
    }
    std::vector<std::vector<ReadLine>> lines;
    for (StripeLines &part : read) {
        if (!part)
            return tl::unexpected(part.error());
        lines.push_back(std::move(*part));
    }
    return inReadingOrder(joined(parts, std::move(lines)));
}

} // namespace tembra::recognition
