#include "editor/model/EditsChange.h"

#include <algorithm>

namespace tembra {

EditsChange EditsChange::between(const ScreenshotEdits &before, const ScreenshotEdits &after) {
    const Annotations &from = before.annotations;
    const Annotations &to = after.annotations;
    const auto [fromFirst, toFirst] = std::ranges::mismatch(from, to);
    const auto [fromEnd, toEnd] = std::mismatch(from.rbegin(), std::make_reverse_iterator(fromFirst),
                                                to.rbegin(), std::make_reverse_iterator(toFirst));
    EditsChange change;
    change.m_first = static_cast<std::size_t>(fromFirst - from.begin());
    change.m_before = {{fromFirst, fromEnd.base()}, before.cropRect};
    change.m_after = {{toFirst, toEnd.base()}, after.cropRect};
    return change;
}

ScreenshotEdits EditsChange::done(const ScreenshotEdits &before) const {
    return replaced(before, m_before, m_after);
}

ScreenshotEdits EditsChange::undone(const ScreenshotEdits &after) const {
    return replaced(after, m_after, m_before);
}

ScreenshotEdits EditsChange::replaced(const ScreenshotEdits &edits, const Side &from, const Side &to) const {
    const auto first = edits.annotations.begin() + static_cast<std::ptrdiff_t>(m_first);
    const auto rest = first + static_cast<std::ptrdiff_t>(from.part.size());
    ScreenshotEdits result;
    result.annotations.reserve(edits.annotations.size() - from.part.size() + to.part.size());
    result.annotations.assign(edits.annotations.begin(), first);
    result.annotations.insert(result.annotations.end(), to.part.begin(), to.part.end());
    result.annotations.insert(result.annotations.end(), rest, edits.annotations.end());
    result.cropRect = to.cropRect;
    return result;
}

} // namespace tembra
