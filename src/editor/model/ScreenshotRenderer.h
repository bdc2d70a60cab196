#pragma once

#include "base/Result.h"
#include "editor/model/ScreenshotAnnotation.h"
#include "imaging/PictureMetadata.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QImage>

#include <optional>
#include <span>
#include <vector>

class QPainter;

namespace tembra {

// Makes the pixels that leave the editor: from the original's bytes, the annotations and the crop, whatever
// the screen and the zoom. Image space. Any thread. Errors: ScreenshotEditError.
struct ScreenshotRenderer {
    // Upright and in sRGB, RGB32 or ARGB32; with a maximum so that its longer side is at most that.
    [[nodiscard]] static Result<QImage> image(QByteArrayView data,
                                              const std::optional<int> &maxPixelSize = {});
    // In the size of the original or the crop. Pixels on which nothing was drawn are the original's to the
    // bit.
    [[nodiscard]] static Result<QImage> render(QByteArrayView original,
                                               const std::vector<ScreenshotAnnotation> &annotations,
                                               const std::optional<QRectF> &cropRect);
    // As "public.png" or "public.jpeg".
    [[nodiscard]] static Result<QByteArray> encode(const QImage &image, const QString &type,
                                                   const PictureMetadata &metadata = {});
    // In list order, without the text that is being edited. The painter maps image space to its device.
    static void draw(std::span<const ScreenshotAnnotation> annotations, QPainter &painter,
                     const std::optional<QUuid> &editingTextID = {});
};

} // namespace tembra
