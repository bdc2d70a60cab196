#pragma once

#include "platform/linux/recognition/worker/PixOwner.h"

namespace tembra::recognition {

// Dark ink on white paper, whatever the colours were: what differs from the even area around it is ink. Light
// text, text on buttons and on rows of a list become alike, and areas vanish. `detail` is how many pixels
// make up one of a display of ordinary density. Null when memory runs out.
[[nodiscard]] PixOwner inkPicture(Pix *grey, int detail);

// The usual height of the letters in an ink picture, in pixels; 0 where nothing looks like letters.
[[nodiscard]] int usualInkHeight(Pix *ink);

} // namespace tembra::recognition
