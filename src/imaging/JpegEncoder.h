#pragma once

#include "imaging/PictureMetadata.h"

#include <QByteArray>
#include <QImage>

#include <optional>

namespace tembra {

// The image as a JPEG file in sRGB, transparent pixels on white. The quality is 0 … 1; in high quality
// colours are as sharp as brightness, so that coloured text stays crisp. Nothing when there is no image, a
// side is longer than the format allows or there is not enough memory. Any thread.
[[nodiscard]] std::optional<QByteArray> encodeJpeg(const QImage &image, double quality,
                                                   const PictureMetadata &metadata);

} // namespace tembra
