#pragma once

#include <QPainterPath>
#include <QPointF>

#include <optional>

namespace tembra {

// An arrow from its thin tail to the tip of its head; bent, it passes through `bend` at its middle. Image
// space.
struct ArrowShape {
    QPointF start;
    QPointF end;
    std::optional<QPointF> bend;
    double width = 0;

    [[nodiscard]] QPointF middle() const;
    // One area to be filled by nonzero winding, grown by so much on every side. The head keeps its
    // proportions; a short arrow is a smaller one, down to the dot of its tail.
    [[nodiscard]] QPainterPath outline(double growth) const;
};

} // namespace tembra
