#pragma once

#include "editor/model/ScreenshotAnnotation.h"

#include <QPainter>

#include <optional>
#include <span>

namespace tembra {

// Draws annotations in the order of the list, later ones on top. The painter's transform takes image space to
// its device; nothing else of the device plays a part, so that an annotation looks the same at every scale.
// What cannot be drawn is left out, blurs draw nothing here, and so does the text that is being edited, which
// the editor shows itself. Any thread that may use the painter.
void drawAnnotations(std::span<const ScreenshotAnnotation> annotations, QPainter &painter,
                     const std::optional<QUuid> &editingTextID = {});

} // namespace tembra
