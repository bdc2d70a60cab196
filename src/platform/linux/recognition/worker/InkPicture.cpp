#include "platform/linux/recognition/worker/InkPicture.h"

#include <array>
#include <span>

namespace tembra::recognition {

namespace {

// Grey levels by which an even area may vary: the noise of JPEG, a gentle gradient.
constexpr int evenness = 10;
// The window that must be even: wider than a stroke of ordinary text.
constexpr int window = 7;
// An even area that is shorter than this both ways may be the inside of a large letter.
constexpr int smallestArea = 58;

// Where the picture is even.
PixOwner evenAreas(Pix *grey, int detail) {
    const int side = (window - 1) * detail + 1;
    const PixOwner darkest(pixErodeGray(grey, side, side));
    const PixOwner lightest(pixDilateGray(grey, side, side));
    if (!darkest || !lightest)
        return {};
    const PixOwner range(pixAbsDifference(lightest.get(), darkest.get()));
    const PixOwner even(range ? pixThresholdToBinary(range.get(), evenness + 1) : nullptr);
    const PixOwner areas(even ? pixSelectBySize(even.get(), smallestArea * detail, smallestArea * detail, 4,
                                                L_SELECT_IF_EITHER, L_SELECT_IF_GTE, nullptr)
                              : nullptr);
    return PixOwner(areas ? pixDilateBrick(nullptr, areas.get(), side, side) : nullptr);
}

// Half of all the ink is not higher than this; each height counts for what it is, so that specks do not.
int middleOf(std::span<const int> counts) {
    int total = 0;
    for (size_t height = 0; height < counts.size(); ++height)
        total += counts[height] * static_cast<int>(height);
    int reached = 0;
    for (size_t height = 0; height < counts.size(); ++height) {
        reached += counts[height] * static_cast<int>(height);
        if (2 * reached > total)
            return static_cast<int>(height);
    }
    return 0;
}

} // namespace

PixOwner inkPicture(Pix *grey, int detail) {
    const PixOwner areas = evenAreas(grey, detail);
    l_int32 isEmpty = 1;
    if (!areas || pixZero(areas.get(), &isEmpty) != 0)
        return {};
    if (isEmpty)
        return PixOwner(pixCopy(nullptr, grey));
    // Each pixel is held against the nearest even area; zero means to be filled.
    const PixOwner seeds(pixCopy(nullptr, grey));
    const PixOwner elsewhere(pixInvert(nullptr, areas.get()));
    if (!seeds || !elsewhere || pixAddConstantGray(seeds.get(), 1) != 0 ||
        pixSetMasked(seeds.get(), elsewhere.get(), 0) != 0)
        return {};
    const PixOwner paper(pixSeedspread(seeds.get(), 4));
    const PixOwner ink(paper ? pixAbsDifference(grey, paper.get()) : nullptr);
    return PixOwner(ink ? pixInvert(nullptr, ink.get()) : nullptr);
}

int usualInkHeight(Pix *ink) {
    constexpr int inkThreshold = 170;
    constexpr int smallest = 4;
    constexpr int largest = 60;
    const PixOwner binary(pixThresholdToBinary(ink, inkThreshold));
    Boxa *boxes = binary ? pixConnCompBB(binary.get(), 8) : nullptr;
    if (!boxes)
        return 0;
    std::array<int, largest + 1> counts{};
    for (int i = 0; i < boxaGetCount(boxes); ++i) {
        l_int32 width = 0;
        l_int32 height = 0;
        boxaGetBoxGeometry(boxes, i, nullptr, nullptr, &width, &height);
        if (height >= smallest && height <= largest && width <= 2 * height && height <= 6 * width)
            ++counts[static_cast<size_t>(height)];
    }
    boxaDestroy(&boxes);
    return middleOf(counts);
}

} // namespace tembra::recognition
