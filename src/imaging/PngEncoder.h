#pragma once

#include "imaging/PictureMetadata.h"

#include <QByteArray>
#include <QImage>

#include <optional>

namespace tembra {

// The image as a PNG file in sRGB, its pixels exact: RGB, or RGBA when one of them is not opaque. Nothing
// when there is no image or not enough memory. Any thread; half the work is done on another one.
[[nodiscard]] std::optional<QByteArray> encodePng(const QImage &image, const PictureMetadata &metadata);

} // namespace tembra
