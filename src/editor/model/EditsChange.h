#pragma once

#include "editor/model/ScreenshotEdits.h"

#include <optional>
#include <vector>

namespace tembra {

// From one state of a screenshot's edits to another: only what differs, so that a long history of a long list
// stays small. A value.
class EditsChange {
public:
    [[nodiscard]] static EditsChange between(const ScreenshotEdits &before, const ScreenshotEdits &after);

    // `before` must be the state that the change was made from, `after` the one that it led to.
    [[nodiscard]] ScreenshotEdits done(const ScreenshotEdits &before) const;
    [[nodiscard]] ScreenshotEdits undone(const ScreenshotEdits &after) const;

private:
    using Annotations = std::vector<ScreenshotAnnotation>;
    // The part of the list that differs, and what comes before it.
    struct Side {
        Annotations part;
        std::optional<QRectF> cropRect;
    };
    [[nodiscard]] ScreenshotEdits replaced(const ScreenshotEdits &edits, const Side &from,
                                           const Side &to) const;

    std::size_t m_first = 0;
    Side m_before;
    Side m_after;
};

} // namespace tembra
