#pragma once

#include <QPainterPath>
#include <QRectF>

namespace tembra {

// The outline of the panel, which seems to grow out of the screen's edge: concave corners beside the top of
// the body, round ones at its bottom. In points of the space that `body` is given in.
struct ShelfPanelShape {
    static constexpr double topRadius = 14;
    static constexpr double bottomRadius = 22;

    [[nodiscard]] static QPainterPath path(const QRectF &body);
};

} // namespace tembra
