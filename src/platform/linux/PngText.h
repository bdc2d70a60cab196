#pragma once

#include "platform/OpenFile.h"

#include <QByteArray>

#include <optional>

namespace tembra {

// The text that a PNG file keeps under a keyword ahead of its picture: tEXt and uncompressed iTXt chunks
// (PNG, ISO/IEC 15948, 11.3.4). Nothing when the file is no PNG or has none within its first 4 KiB.
[[nodiscard]] std::optional<QByteArray> pngText(const OpenFile &file, const QByteArray &keyword);

} // namespace tembra
