#pragma once

#include "editor/model/EditorNumber.h"

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

namespace tembra {

// The badge of a number: a circle, or a pill where its digits need more room. Image space.
struct NumberBadge {
    // Without the rim, which lies around it.
    QRectF body;
    // Their ink is centred in the body.
    QPainterPath digits;
    double rimWidth = 0;

    [[nodiscard]] static NumberBadge of(const EditorNumber &number, QPointF center);
    [[nodiscard]] QPainterPath outline() const;
    // Around the body, its outer edge grown by so much.
    [[nodiscard]] QPainterPath rim(double growth) const;
};

} // namespace tembra
