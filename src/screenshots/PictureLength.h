#pragma once

#include "platform/OpenFile.h"

#include <cstdint>

namespace tembra {

// Whether an image file reaches to the picture's end. Its pixels are not looked at, and something may follow
// behind: phones and editors leave notes there. A few reads where nothing follows.
[[nodiscard]] bool isWholePng(const OpenFile &file, std::uint64_t size);
[[nodiscard]] bool isWholeJpeg(const OpenFile &file, std::uint64_t size);
// The first directory of the file (TIFF 6.0, section 2), its values and its strips or tiles lie within it.
[[nodiscard]] bool isWholeTiff(const OpenFile &file, std::uint64_t size);

} // namespace tembra
