#pragma once

#include "editor/model/ScreenshotAnnotation.h"

#include <QLineF>
#include <QRectF>
#include <QSet>

#include <optional>
#include <vector>

namespace tembra {

// What is shown while the pointer is down, in place of the document as it is. A value, in image space.
struct CanvasDraft {
    // Shown instead of those with the same id, or on top of all.
    std::vector<ScreenshotAnnotation> annotations;
    // By how much, where they are nothing but moved from where the gesture found them; and what they cover.
    std::optional<QPointF> movedBy;
    QRectF movedBounds;
    // Where something lies in line with something else.
    std::vector<QLineF> guides;
    // What is being selected.
    std::optional<QRectF> band;
    std::optional<QSet<QUuid>> selection;
    // The words that will be hidden.
    std::vector<QRectF> words;

    bool operator==(const CanvasDraft &) const = default;
};

} // namespace tembra
