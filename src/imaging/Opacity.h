#pragma once

#include <QImage>

namespace tembra {

// Whether every pixel of an image is opaque: RGB32 is, of ARGB32 all are looked at.
[[nodiscard]] bool isOpaque(const QImage &image);

} // namespace tembra
