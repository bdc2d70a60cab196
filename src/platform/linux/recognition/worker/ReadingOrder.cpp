#include "platform/linux/recognition/worker/ReadingOrder.h"

#include <span>
#include <tuple>

namespace tembra::recognition {

namespace {

// Lines stand closer to each other than columns do, so the gap between two blocks of lines counts for more.
constexpr double rowGapWeight = 2;

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

void order(std::span<Entry> entries) {
    while (entries.size() > 1) {
        const Cut columns = widestCut(entries, &TextBox::left, &TextBox::right);
        const Cut rows = widestCut(entries, &TextBox::top, &TextBox::bottom);
        if (columns.count == 0 && rows.count == 0) {
            std::ranges::sort(entries, {},
                              [](const Entry &entry) { return std::tuple(entry.box.top, entry.box.left); });
            return;
        }
        size_t count = rows.count;
        if (columns.gap > rowGapWeight * rows.gap) {
            std::ranges::sort(entries, {}, [](const Entry &entry) { return entry.box.left; });
            count = columns.count;
        }
        // The shorter part by recursion, so that its depth stays small.
        if (count <= entries.size() / 2) {
            order(entries.first(count));
            entries = entries.subspan(count);
        } else {
            order(entries.subspan(count));
            entries = entries.first(count);
        }
    }
}

} // namespace

std::vector<ReadLine> inReadingOrder(std::vector<ReadLine> lines) {
    std::vector<Entry> entries;
    for (size_t i = 0; i < lines.size(); ++i)
        entries.push_back({boxOf(lines[i]), i});
    order(entries);
    std::vector<ReadLine> ordered;
    ordered.reserve(lines.size());
    for (const Entry &entry : entries)
        ordered.push_back(std::move(lines[entry.index]));
    return ordered;
}

} // namespace tembra::recognition
