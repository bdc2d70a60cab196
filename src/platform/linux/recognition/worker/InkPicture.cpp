#include "platform/linux/recognition/worker/InkPicture.h"

#include "platform/linux/recognition/worker/Regions.h"

#include <cstdlib>

namespace tembra::recognition {

namespace {

// Neighbours on paper differ by no more: a gentle gradient.
constexpr int evenness = 2;
// What is longer is no letter.
constexpr int longest = 160;
// What is longer may be a letter if it does not fill its frame.
constexpr int longestOrdinary = 48;
constexpr double framed = 0.5;
// Shorter badges are not told from letters.
constexpr int shortestBadge = 24;
constexpr double flattestLetter = 1.8;
// Boxes to be checked and the like, which are framed on all sides.
constexpr int smallestBox = 11;
constexpr double framedSide = 0.6;

// How many pixels of the frame around a region are its own.
struct Frame {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

bool isPaper(const PixelBox &box, const Frame &frame) {
    const double width = box.width();
    const double height = box.height();
    if (std::max(width, height) >= longest)
        return true;
    if (std::max(width, height) < smallestBox)
        return false;
    const double share = (frame.left + frame.top + frame.right + frame.bottom) / (2 * (width + height));
    if (share >= framed && std::max(width, height) >= longestOrdinary)
        return true;
    if (share >= framed && width >= shortestBadge && width >= flattestLetter * height)
        return true;
    return std::min(width, height) >= smallestBox &&
           std::min(frame.left, frame.right) >= framedSide * height &&
           std::min(frame.top, frame.bottom) >= framedSide * width;
}

std::vector<Frame> framesOf(const Regions &regions, int width) {
    std::vector<Frame> frames(regions.boxes.size());
    forRuns(regions.numbers, width, [&](std::int32_t number, const PixelBox &run) {
        const PixelBox &box = regions.boxes[static_cast<size_t>(number)];
        Frame &frame = frames[static_cast<size_t>(number)];
        frame.left += run.left == box.left ? 1 : 0;
        frame.right += run.right == box.right ? 1 : 0;
        frame.top += run.top == box.top ? run.width() : 0;
        frame.bottom += run.bottom == box.bottom ? run.width() : 0;
    });
    return frames;
}

// A box to be checked: what is in it is no text.
bool isCheckBox(const PixelBox &box) {
    constexpr int largestBox = 18;
    return std::max(box.width(), box.height()) <= largestBox;
}

// Holds a row against the paper that is nearest in it; where it has none there is no ink.
void markInk(const std::uint8_t *grey, const std::vector<bool> &papers, const std::int32_t *numbers,
             int width, std::uint8_t *ink) {
    int last = -1;
    for (int x = 0; x <= width; ++x) {
        if (x < width && !papers[static_cast<size_t>(numbers[x])])
            continue;
        const int next = x < width ? x : -1;
        for (int i = last + 1; i < x; ++i) {
            const bool isLastNearer = last >= 0 && (next < 0 || i - last <= next - i);
            const int nearest = isLastNearer ? last : next;
            if (nearest < 0)
                return;
            ink[i] = static_cast<std::uint8_t>(std::abs(int{grey[i]} - int{grey[nearest]}));
        }
        last = x;
    }
}

} // namespace

GreyPicture inkPicture(const GreyPicture &grey) {
    const auto &levels = grey.levels;
    const Regions areas = regionsOf(
        grey.width, grey.height, [](size_t) { return true; },
        [&](size_t a, size_t b) { return std::abs(int{levels[a]} - int{levels[b]}) <= evenness; });
    const std::vector<Frame> frames = framesOf(areas, grey.width);
    std::vector<bool> papers(areas.boxes.size());
    for (size_t i = 0; i < papers.size(); ++i)
        papers[i] = isPaper(areas.boxes[i], frames[i]);
    GreyPicture ink(grey.width, grey.height);
    for (int y = 0; y < grey.height; ++y)
        markInk(grey.row(y), papers, areas.numbers.data() + std::ptrdiff_t{y} * grey.width, grey.width,
                ink.row(y));
    for (size_t i = 0; i < papers.size(); ++i) {
        const PixelBox &box = areas.boxes[i];
        for (int y = box.top; papers[i] && isCheckBox(box) && y < box.bottom; ++y)
            std::fill(ink.row(y) + box.left, ink.row(y) + box.right, std::uint8_t{0});
    }
    return ink;
}

} // namespace tembra::recognition
