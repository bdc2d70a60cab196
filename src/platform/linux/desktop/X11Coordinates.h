#pragma once

#include "platform/ScreenGeometry.h"

#include <QRect>

namespace tembra {

// Where a rectangle in screen points lies in the pixels of the X server, rounded outwards. Qt keeps the
// origin of each screen in pixels and divides only what lies inside it by the screen's scale.
[[nodiscard]] QRect nativePixels(const ScreenRect &rect);

} // namespace tembra
