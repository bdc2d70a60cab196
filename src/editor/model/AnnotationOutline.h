#pragma once

#include "editor/model/ScreenshotAnnotation.h"

#include <QPainterPath>

namespace tembra {

// The outline of a drawable annotation, to be filled by nonzero winding; that of an arrow, a pencil stroke, a
// line or a shape lies `growth` outside on every side. Image space.
[[nodiscard]] QPainterPath annotationOutline(const ScreenshotAnnotation &annotation, double growth);

// How far the soft edge around a drawable annotation reaches from its outline.
[[nodiscard]] double haloWidth(const ScreenshotAnnotation &annotation);

} // namespace tembra
