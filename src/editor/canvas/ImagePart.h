#pragma once

#include "editor/canvas/CanvasViewport.h"
#include "editor/canvas/ImagePyramid.h"

#include <QPainter>
#include <QRect>

namespace tembra {

// The part of an image that a viewport shows, in the pixels of the level of its pyramid that fits the scale.
struct ImagePart {
    const ImagePyramid::Level *level = nullptr;
    // Whole pixels of the level; empty when nothing is seen.
    QRect pixels;
    // Where they are shown, in view space.
    QRectF target;

    [[nodiscard]] static ImagePart of(const ImagePyramid &pyramid, const CanvasViewport &viewport);
    // `image` is the part itself; the painter works in view space.
    void draw(QPainter &painter, const QImage &image, const QRectF &source,
              const CanvasViewport &viewport) const;
};

} // namespace tembra
