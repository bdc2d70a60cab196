#pragma once

#include "editor/model/ScreenshotAnnotation.h"

#include <QPointF>
#include <QSet>

#include <optional>
#include <span>
#include <vector>

namespace tembra {

// Something to take hold of: a handle of the selected annotation, or an annotation. Image space; `zoom` is
// the points of the view for a pixel of the image.
struct CanvasTarget {
    // A place at which an annotation is dragged.
    struct Handle {
        QPointF position;
        // By its rectangle (RectHandles.h) or by one of its points (PointGesture.h).
        bool isOfRect = false;
        int index = 0;
    };

    QUuid id;
    std::optional<Handle> handle;

    // The handles of an annotation that is selected alone. A small one shows its corners only.
    [[nodiscard]] static std::vector<Handle> handlesOf(const ScreenshotAnnotation &annotation, double zoom);
    // Handles come first, then the topmost annotation; of the selected ones the inside counts too.
    [[nodiscard]] static std::optional<CanvasTarget> at(QPointF point,
                                                        std::span<const ScreenshotAnnotation> annotations,
                                                        const QSet<QUuid> &selected, double zoom);
};

} // namespace tembra
