#pragma once

#include <QByteArrayView>
#include <QImage>

#include <optional>

namespace tembra {

// The first image of a PNG or JPEG file, upright, in sRGB with eight bits a channel: RGB32 when it is opaque,
// else ARGB32, which keeps the colours of transparent pixels exact. Nothing when the file is of another kind,
// damaged, cut short or too large (PictureLimits.h): never a part of an image. Any thread.
[[nodiscard]] std::optional<QImage> decodePicture(QByteArrayView bytes);

// The same reduced so that no side is longer than `maxPixelSize`, which takes less time and memory.
[[nodiscard]] std::optional<QImage> decodePicture(QByteArrayView bytes, int maxPixelSize);

} // namespace tembra
