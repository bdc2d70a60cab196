#pragma once

#include "imaging/JpegFile.h"

#include <QByteArrayView>
#include <QImage>

#include <optional>

namespace tembra {

// The pixels of a JPEG file as stored, RGB32, in the colours of its profile. At a part of its size where that
// leaves the longest side no shorter than `neededSide`. Nothing when the file is damaged or cut short.
[[nodiscard]] std::optional<QImage> decodeJpeg(QByteArrayView bytes, const JpegFile &file, int neededSide);

} // namespace tembra
