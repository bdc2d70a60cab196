#pragma once

#include "imaging/PictureHeader.h"

namespace tembra {

// Whether a picture can be opened and saved in the memory there is, and whether its file is long enough to
// hold so many pixels at all. To be asked before anything is decoded: a few bytes can promise gigabytes.
[[nodiscard]] bool isDecodable(const PictureHeader &header, qsizetype fileSize);

} // namespace tembra
