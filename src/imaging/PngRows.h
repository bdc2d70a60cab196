#pragma once

#include "imaging/PngFile.h"

#include <QImage>

#include <optional>
#include <span>

namespace tembra {

// The pixels of a PNG file of the common kind, from its compressed pieces to images. Any thread.

// Inflates into `rows`, which holds `head.pixelBytes()`; `room` is as PngFile::joinedIn wants it. Whether
// there were as many bytes, no more and no less, and their checksum is right.
[[nodiscard]] bool inflateRows(const PngFile &file, std::span<unsigned char> room,
                               std::span<unsigned char> rows);

// The picture in full: RGB32 when all of it is opaque, else ARGB32. Undoes the filters in place. Nothing when
// a row is damaged or there is no memory.
[[nodiscard]] std::optional<QImage> imageOfRows(const PngFile &file, std::span<unsigned char> rows);

// The same reduced to a size that is no larger on either side (AreaAverage.h), row by row.
[[nodiscard]] std::optional<QImage> reducedImageOfRows(const PngFile &file, std::span<unsigned char> rows,
                                                       QSize target);

} // namespace tembra
