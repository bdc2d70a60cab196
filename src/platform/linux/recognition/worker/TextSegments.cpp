#include "platform/linux/recognition/worker/TextSegments.h"

#include <cmath>

namespace tembra::recognition {

namespace {

// Levels that anything has to stand out by.
constexpr int faintest = 24;
// Of the strongest ink nearby: what is less is the soft edge of a letter.
constexpr double edge = 0.35;
constexpr int edgeReach = 6;
constexpr int smallestLetter = 5;
constexpr int largestLetter = 120;
// In heights of the line.
constexpr double widestSpace = 1.05;
constexpr double widestLetterSpace = 0.3;
constexpr double widestMarkSpace = 1.2;
constexpr double smallMark = 0.62;
// In its own height.
constexpr double wordShape = 1.6;
constexpr double thinnest = 0.15;
constexpr double longestMark = 3;

// Ink without soft edges.
std::vector<bool> marksOf(const GreyPicture &ink) {
    std::vector<bool> marks(ink.levels.size());
    for (int y = 0; y < ink.height; ++y) {
        const std::uint8_t *const row = ink.row(y);
        for (int x = 0; x < ink.width; ++x) {
            if (row[x] < faintest)
                continue;
            const auto *const from = row + std::max(0, x - edgeReach);
            const auto *const to = row + std::min(ink.width, x + edgeReach + 1);
            marks[static_cast<size_t>(y) * static_cast<size_t>(ink.width) + static_cast<size_t>(x)] =
                row[x] >= edge * *std::max_element(from, to);
        }
    }
    return marks;
}

int commonRows(const PixelBox &first, const PixelBox &second) {
    return std::min(first.bottom, second.bottom) - std::max(first.top, second.top);
}

bool isLetter(const PixelBox &box) {
    return box.height() >= smallestLetter && box.height() <= largestLetter &&
           box.width() <= 40 * box.height();
}

// Letters that follow one another; as many as its box has.
struct Chain {
    PixelBox box;
    int letters = 1;
};

bool isBar(const PixelBox &box) {
    return box.width() <= thinnest * box.height();
}

bool areOnOneLine(const PixelBox &first, const PixelBox &second) {
    // A bar that is taller is the edge of something.
    const double differentSize = isBar(first) || isBar(second) ? 1.75 : 2.6;
    const double least = std::min(first.height(), second.height());
    return std::max(first.height(), second.height()) <= differentSize * least &&
           commonRows(first, second) >= 0.5 * least;
}

// Joins what stands on one line with no wider gap than the two allow; the boxes come from left to right.
template <class WidestGap>
std::vector<Chain> joined(std::vector<Chain> &&parts, WidestGap widestGap) {
    std::ranges::sort(parts, {}, [](const Chain &part) { return part.box.left; });
    std::vector<Chain> chains;
    std::vector<size_t> open;
    for (const Chain &part : parts) {
        std::erase_if(open,
                      [&](size_t i) { return part.box.left - chains[i].box.right > 2 * largestLetter; });
        int best = 0;
        Chain *bestChain = nullptr;
        for (const size_t i : open) {
            const PixelBox &box = chains[i].box;
            const int common = commonRows(box, part.box);
            if (common > best && areOnOneLine(box, part.box) &&
                part.box.left - box.right <= widestGap(box, part.box)) {
                best = common;
                bestChain = &chains[i];
            }
        }
        if (bestChain) {
            *bestChain = {bestChain->box.united(part.box), bestChain->letters + part.letters};
        } else {
            open.push_back(chains.size());
            chains.push_back(part);
        }
    }
    return chains;
}

// The height of the tallest word on the same line nearby.
int lineHeight(const std::vector<Chain> &words, const PixelBox &box) {
    int height = 0;
    for (const Chain &word : words) {
        const int apart = std::max(box.left - word.box.right, word.box.left - box.right);
        if (apart <= 8 * box.height() && areOnOneLine(word.box, box))
            height = std::max(height, word.box.height());
    }
    return height;
}

// What is clearly taller than the words that it stands beside and not much wider than tall. Brackets and
// digits are taller than small letters too, but not as the sides of a button are.
bool isIcon(const PixelBox &box, const std::vector<Chain> &words) {
    constexpr double narrow = 0.5;
    constexpr double near = 1.5;
    if (box.width() >= wordShape * box.height())
        return false;
    const double taller = box.width() < narrow * box.height() ? 1.8 : 1.35;
    int height = 0;
    for (const Chain &word : words) {
        const int apart = std::max(word.box.left - box.right, box.left - word.box.right);
        if (apart > 0 && apart <= near * box.height() && 2 * commonRows(word.box, box) >= word.box.height())
            height = std::max(height, word.box.height());
    }
    return height > 0 && box.height() > taller * height;
}

// A dot or a part of a letter, whatever its size.
bool isMark(const Chain &chain) {
    const double longest = chain.letters == 1 ? longestMark : wordShape;
    return chain.letters <= 2 && chain.box.width() < longest * chain.box.height();
}

// Dots, commas, hyphens, quotes go to the line that they stand at; what stands at none is left out.
std::vector<Chain> withSmallMarks(const std::vector<Chain> &chains, const std::vector<PixelBox> &marks) {
    std::vector<Chain> result = chains;
    std::vector<bool> isTaken(chains.size());
    const auto take = [&](const PixelBox &mark) {
        size_t best = chains.size();
        double bestDistance = 1e9;
        for (size_t i = 0; i < chains.size(); ++i) {
            const PixelBox &box = chains[i].box;
            const double across = std::max({0, box.left - mark.right, mark.left - box.right});
            const double down = std::max({0, box.top - mark.bottom, mark.top - box.bottom});
            if (mark.height() > smallMark * box.height() ||
                across > (down > 0 ? 0.5 : widestMarkSpace) * box.height() || down > 0.25 * box.height() ||
                mark.width() > 2 * box.height())
                continue;
            // What underlines a line stands nearer to the next one at times.
            const bool isOverIt = mark.bottom <= box.top && mark.width() >= 0.5 * box.height();
            const double apart = across + 2 * down + (isOverIt ? 0.5 * box.height() : 0);
            if (apart < bestDistance) {
                bestDistance = apart;
                best = i;
            }
        }
        if (best == chains.size())
            return false;
        // A bracket and a colon are no icon, an exclamation mark is no edge.
        const PixelBox &box = chains[best].box;
        if (isBar(box) || mark.left >= box.right || mark.right <= box.left)
            ++result[best].letters;
        result[best].box = result[best].box.united(mark);
        return true;
    };
    for (const PixelBox &mark : marks)
        (void)take(mark);
    for (size_t i = 0; i < chains.size(); ++i)
        isTaken[i] = isMark(chains[i]) && take(chains[i].box);
    size_t i = 0;
    std::erase_if(result, [&](const Chain &) { return isTaken[i++]; });
    return result;
}

std::vector<Chain> chainsOf(const std::vector<PixelBox> &letters, const std::vector<PixelBox> &marks) {
    std::vector<Chain> parts;
    for (const PixelBox &letter : letters)
        parts.push_back({letter});
    parts = joined(std::move(parts), [](const PixelBox &first, const PixelBox &second) {
        return std::max(3.0, widestLetterSpace * std::min(first.height(), second.height()));
    });
    parts = withSmallMarks(parts, marks);
    // A lone bar is the edge of something.
    std::erase_if(parts, [](const Chain &part) { return part.letters == 1 && isBar(part.box); });
    std::vector<Chain> words = parts;
    std::erase_if(words, [](const Chain &part) { return part.box.width() < wordShape * part.box.height(); });
    std::erase_if(parts, [&](const Chain &part) { return part.letters == 1 && isIcon(part.box, words); });
    return joined(std::move(parts), [&](const PixelBox &first, const PixelBox &second) {
        if (isIcon(first, words) || isIcon(second, words))
            return -1.0;
        return widestSpace * std::max(lineHeight(words, first), lineHeight(words, second));
    });
}

TextSegment measured(const GreyPicture &ink, const PixelBox &box) {
    TextSegment segment{box, box.top, box.bottom, faintest};
    for (int y = box.top; y < box.bottom; ++y)
        segment.strongest = std::max<int>(segment.strongest,
                                          *std::max_element(ink.row(y) + box.left, ink.row(y) + box.right));
    segment.threshold = std::max(faintest, static_cast<int>(std::lround(edge * segment.strongest)));
    std::vector<int> counts;
    for (int y = box.top; y < box.bottom; ++y)
        counts.push_back(
            static_cast<int>(std::count_if(ink.row(y) + box.left, ink.row(y) + box.right,
                                           [&](int level) { return level >= segment.threshold; })));
    constexpr double core = 0.45;
    const int most = *std::ranges::max_element(counts);
    const auto isCore = [&](int count) { return count >= core * most; };
    segment.coreTop = box.top + static_cast<int>(std::ranges::find_if(counts, isCore) - counts.begin());
    const auto last = std::find_if(counts.rbegin(), counts.rend(), isCore);
    segment.coreBottom = box.bottom - static_cast<int>(last - counts.rbegin());
    return segment;
}

} // namespace

std::vector<TextSegment> textSegments(const GreyPicture &ink) {
    const std::vector<bool> marks = marksOf(ink);
    const Regions regions = regionsOf(
        ink.width, ink.height, [&](size_t at) { return marks[at]; }, [](size_t, size_t) { return true; });
    std::vector<PixelBox> letters;
    std::vector<PixelBox> small;
    for (const PixelBox &box : regions.boxes) {
        if (isLetter(box))
            letters.push_back(box);
        else if (box.height() < smallestLetter)
            small.push_back(box);
    }
    const std::vector<Chain> chains = chainsOf(letters, small);
    std::vector<TextSegment> segments;
    for (const Chain &chain : chains)
        segments.push_back(measured(ink, chain.box));
    return segments;
}

} // namespace tembra::recognition
