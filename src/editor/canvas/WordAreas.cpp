#include "editor/canvas/WordAreas.h"

#include "editor/model/GrownRect.h"

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

// Of the line's height: what surrounds a word that is hidden, and the gap over which words are neighbours.
constexpr double marginPart = 0.18;
constexpr double gapPart = 1.2;

bool areNeighbours(const QRectF &one, const QRectF &other) {
    const double height = std::min(one.height(), other.height());
    const double shared = std::min(one.bottom(), other.bottom()) - std::max(one.top(), other.top());
    const double gap = std::max(one.left(), other.left()) - std::min(one.right(), other.right());
    return shared >= height / 2 && gap <= gapPart * height;
}

// Until no two of them are neighbours.
std::vector<QRectF> merged(std::vector<QRectF> areas) {
    for (std::size_t at = 0; at < areas.size();) {
        const auto rest = areas.begin() + static_cast<std::ptrdiff_t>(at) + 1;
        const auto other = std::find_if(rest, areas.end(),
                                        [&](const QRectF &area) { return areNeighbours(areas[at], area); });
        if (other == areas.end()) {
            ++at;
            continue;
        }
        areas[at] |= *other;
        areas.erase(other);
        // The larger one may have come near those before it.
        at = 0;
    }
    return areas;
}

} // namespace

std::optional<QRectF> WordAreas::wordAt(QPointF point, std::span<const QRectF> words, double tolerance) {
    std::optional<QRectF> best;
    for (const QRectF &word : words) {
        if (!grown(word, tolerance).contains(point))
            continue;
        // Of words within words the smallest is meant.
        if (!best || word.width() * word.height() < best->width() * best->height())
            best = word;
    }
    return best;
}

std::vector<QRectF> WordAreas::wordsIn(const QRectF &rect, std::span<const QRectF> words) {
    std::vector<QRectF> touched;
    std::ranges::copy_if(words, std::back_inserter(touched), [&](const QRectF &word) {
        return word.left() <= rect.right() && word.right() >= rect.left() && word.top() <= rect.bottom() &&
               word.bottom() >= rect.top();
    });
    return touched;
}

std::vector<QRectF> WordAreas::hiding(std::span<const QRectF> words, const QRectF &limits) {
    std::vector<QRectF> areas;
    for (const QRectF &area : merged({words.begin(), words.end()})) {
        const double margin = std::max(2.0, std::round(area.height() * marginPart));
        const QRectF whole = QRectF(grown(area, margin).toAlignedRect()) & limits;
        if (!whole.isEmpty())
            areas.push_back(whole);
    }
    return areas;
}

} // namespace tembra
