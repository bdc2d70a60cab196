#pragma once

#include "base/Result.h"
#include "editor/model/ScreenshotAnnotation.h"

#include <QByteArrayView>
#include <QRectF>

#include <optional>
#include <vector>

namespace tembra {

// What is done to a screenshot: drawn in this order, and cut to the crop. A value, in image space.
struct ScreenshotEdits {
    std::vector<ScreenshotAnnotation> annotations;
    // Nothing for the whole image.
    std::optional<QRectF> cropRect;

    // From JSON: {"annotations": […], "cropRect": {"x", "y", "width", "height"}}, both optional. Errors:
    // ScreenshotEditError, for what is not so and for annotations whose values make no sense.
    [[nodiscard]] static Result<ScreenshotEdits> read(QByteArrayView json);

    bool operator==(const ScreenshotEdits &) const = default;
};

} // namespace tembra
