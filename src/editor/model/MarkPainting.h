#pragma once

#include "editor/model/EditorColor.h"

#include <QPainter>
#include <QPainterPath>

namespace tembra {

// A shape in a colour, within a thin soft edge of light around dark colours and of shade around light ones,
// so that it is seen on any background. The edge lies outside the shape alone, also of one that is not
// opaque. Image space.
struct Mark {
    QPainterPath shape;
    EditorColor color;
    // How far the edge reaches.
    double haloWidth = 0;
    // How strong it is: 1 in full.
    double haloStrength = 1;

    void draw(QPainter &painter) const;
};

// The part of image space that a painter can show: its device's, and within its clip.
[[nodiscard]] QRectF visibleRect(const QPainter &painter);

} // namespace tembra
