#pragma once

#include <QRectF>
#include <QSizeF>

#include <optional>

namespace tembra {

// Where a screenshot is about to be shown, which tells how large a preview it needs.
struct ScreenshotEditPreviewRequest {
    // Of the canvas, in points.
    QSizeF available;
    // Pixels of the screen a point.
    double backingScale = 1;
    // The limits of the zoom, in points a pixel of the image.
    double minimumZoom = 0;
    double maximumZoom = 1;

    // The longest side of the preview in pixels.
    [[nodiscard]] int maximumPixelSize(QSizeF image, const std::optional<QRectF> &crop) const;
};

} // namespace tembra
