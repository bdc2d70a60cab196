#pragma once

#include "editor/canvas/CanvasDraft.h"
#include "editor/canvas/CanvasViewport.h"
#include "editor/canvas/ImagePyramid.h"

#include <QColor>

#include <memory>
#include <span>

namespace tembra {

// What the canvas shows at one moment. It holds views of what others own, for the length of a call.
struct CanvasScene {
    CanvasViewport viewport;
    std::shared_ptr<const ImagePyramid> image;
    std::span<const ScreenshotAnnotation> annotations;
    // In place of those of the annotations that have the same ids, and on top of them.
    const CanvasDraft &draft;
    // Around the image.
    QColor background;
    QColor dots;
};

} // namespace tembra
