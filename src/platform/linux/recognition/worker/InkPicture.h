#pragma once

#include "platform/linux/recognition/worker/GreyPicture.h"

namespace tembra::recognition {

// How much each pixel stands out from the paper around it: 0 is paper. Paper is what has one level over an
// area larger than a letter or is framed like a button, so light text, text on badges and on the rows of a
// list become alike, and areas and frames vanish.
[[nodiscard]] GreyPicture inkPicture(const GreyPicture &grey);

} // namespace tembra::recognition
