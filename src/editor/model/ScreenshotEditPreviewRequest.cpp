#include "editor/model/ScreenshotEditPreviewRequest.h"

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

constexpr double least = 2'560;

} // namespace

int ScreenshotEditPreviewRequest::maximumPixelSize(QSizeF image, const std::optional<QRectF> &crop) const {
    const QSizeF shown = crop ? crop->size() : image;
    if (image.isEmpty() || shown.isEmpty())
        return static_cast<int>(least);
    const double fit = std::min(available.width() / shown.width(), available.height() / shown.height());
    const double zoom = std::min(std::max(fit, minimumZoom), maximumZoom);
    const double longest = std::max(image.width(), image.height());
    const double wanted = std::ceil(backingScale * longest * zoom);
    return static_cast<int>(std::min(std::max(wanted, least), longest));
}

} // namespace tembra
