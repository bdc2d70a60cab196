#pragma once

#include "editor/model/ScreenshotAnnotation.h"

namespace tembra {

// How far the soft edge around a drawable annotation reaches from its outline, in pixels of the image.
[[nodiscard]] double haloWidth(const ScreenshotAnnotation &annotation);

} // namespace tembra
