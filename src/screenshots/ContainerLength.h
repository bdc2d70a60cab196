#pragma once

#include "platform/OpenFile.h"

#include <cstdint>

namespace tembra {

// Whether a file in the ISO base media format (ISO/IEC 14496-12: MP4, MOV, HEIC) is as long as its boxes say,
// the last of them ending with the file, and has a box of the given type at the top ("moov", "meta").
[[nodiscard]] bool isWholeIsoMedia(const OpenFile &file, std::uint64_t size, const char *requiredBox);

// What the header of a Matroska or WebM file (RFC 9559) says about its length.
enum class MatroskaLength { whole, tooShort, unknown };
[[nodiscard]] MatroskaLength matroskaLength(const OpenFile &file, std::uint64_t size);

} // namespace tembra
