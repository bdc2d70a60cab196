#include "platform/linux/recognition/worker/ReadingOrder.h"

#include <cmath>
#include <iterator>
#include <span>

namespace tembra::recognition {

namespace {

// Lines stand closer to each other than columns do, so the gap between two blocks of lines counts for more.
constexpr double rowGapWeight = 2;
// In heights of the line.
constexpr double proseLength = 20;
// So many of one column's lines have a partner in the other's.
constexpr double cellShare = 0.7;

struct Entry {
    TextBox box;
    size_t index = 0;
};

struct Cut {
    double gap = 0;
    // How many of the sorted entries come before it.
    size_t count = 0;
};

// The widest gap that no box reaches into, along one axis; sorts the entries along it.
Cut widestCut(std::span<Entry> entries, double TextBox::*start, double TextBox::*end) {
    std::ranges::sort(entries, {}, [start](const Entry &entry) { return entry.box.*start; });
    Cut cut;
    double reached = entries.front().box.*end;
    for (size_t i = 1; i < entries.size(); ++i) {
        const double gap = entries[i].box.*start - reached;
        if (gap > cut.gap)
            cut = {gap, i};
        reached = std::max(reached, entries[i].box.*end);
    }
    return cut;
}

double height(const Entry &entry) {
    return entry.box.bottom - entry.box.top;
}

bool areInOneRow(const Entry &first, const Entry &second) {
    const double apart = (first.box.top + first.box.bottom - second.box.top - second.box.bottom) / 2;
    return std::abs(apart) <= 0.5 * std::min(height(first), height(second));
}

bool isProse(std::span<const Entry> entries) {
    const auto isLong = [](const Entry &entry) {
        return entry.box.right - entry.box.left >= proseLength * height(entry);
    };
    return 2 * std::ranges::count_if(entries, isLong) >= std::ssize(entries);
}

// The cells of a table stand in rows, which are read across; so are the entries of a menu and their keys.
bool areCells(std::span<const Entry> left, std::span<const Entry> right) {
    if (isProse(left) && isProse(right))
        return false;
    const auto fewer = left.size() < right.size() ? left : right;
    const auto more = left.size() < right.size() ? right : left;
    const auto hasPartner = [&](const Entry &entry) {
        return std::ranges::any_of(more, [&](const Entry &other) { return areInOneRow(entry, other); });
    };
    return static_cast<double>(std::ranges::count_if(fewer, hasPartner)) >=
           cellShare * static_cast<double>(fewer.size());
}

// Columns stand beside each other; the sides of a conversation do not.
bool areBeside(std::span<const Entry> left, std::span<const Entry> right) {
    const auto fewer = left.size() < right.size() ? left : right;
    const auto more = left.size() < right.size() ? right : left;
    const auto isBeside = [&](const Entry &entry) {
        return std::ranges::any_of(more, [&](const Entry &other) {
            return entry.box.top < other.box.bottom && other.box.top < entry.box.bottom;
        });
    };
    return 2 * std::ranges::count_if(fewer, isBeside) >= std::ssize(fewer);
}

// Puts them in order; gives how many make up each line.
void order(std::span<Entry> entries, std::vector<size_t> &lineSizes) {
    while (!entries.empty()) {
        const Cut rows = widestCut(entries, &TextBox::top, &TextBox::bottom);
        const Cut columns = widestCut(entries, &TextBox::left, &TextBox::right);
        size_t count = entries.size();
        const auto left = entries.first(columns.count);
        const auto right = entries.subspan(columns.count);
        if (columns.gap > rowGapWeight * rows.gap && areBeside(left, right) && !areCells(left, right)) {
            count = columns.count;
        } else if (rows.count > 0) {
            std::ranges::sort(entries, {}, [](const Entry &entry) { return entry.box.top; });
            count = rows.count;
        }
        if (count == entries.size()) {
            lineSizes.push_back(count);
            return;
        }
        order(entries.first(count), lineSizes);
        entries = entries.subspan(count);
    }
}

} // namespace

std::vector<ReadLine> inReadingOrder(std::vector<ReadLine> lines) {
    std::vector<Entry> entries;
    for (size_t i = 0; i < lines.size(); ++i) {
        TextBox box = boxOf(lines[i]);
        // Tall brackets and tails reach into the next row.
        const double overlap = 0.2 * (box.bottom - box.top);
        box.top += overlap;
        box.bottom -= overlap;
        entries.push_back({box, i});
    }
    std::vector<size_t> lineSizes;
    order(entries, lineSizes);
    std::vector<ReadLine> ordered;
    auto entry = entries.begin();
    for (const size_t size : lineSizes) {
        ReadLine &line = ordered.emplace_back();
        for (const auto end = entry + static_cast<std::ptrdiff_t>(size); entry != end; ++entry)
            std::ranges::move(lines[entry->index], std::back_inserter(line));
    }
    return ordered;
}

} // namespace tembra::recognition
