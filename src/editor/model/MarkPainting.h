#pragma once

#include "editor/model/EditorColor.h"

#include <QPainter>
#include <QPainterPath>

#include <functional>

namespace tembra {

// A shape in a colour, within a thin soft edge of light around dark colours and of shade around light ones,
// so that it is seen on any background. The edge lies outside the shape alone, also of one that is not
// opaque. Image space.
struct Mark {
    // Filled by nonzero winding.
    QPainterPath shape;
    EditorColor color;
    // How far the edge reaches, and how strong it is: 1 in full.
    double haloWidth = 0;
    double haloStrength = 1;
    // The shape grown by so much on every side; where it is also smaller inside, that does no harm.
    std::function<QPainterPath(double growth)> grown;

    // The edge, then the shape.
    void draw(QPainter &painter) const;
    void drawHalo(QPainter &painter) const;
    void drawShape(QPainter &painter) const;
};

// The part of image space that a painter can show: its device's, and within its clip.
[[nodiscard]] QRectF visibleRect(const QPainter &painter);

} // namespace tembra
