#pragma once

#include <QLineF>
#include <QPointF>
#include <QRectF>

#include <span>
#include <vector>

namespace tembra {

// Where something that is moved or resized comes into line with the edges or the middle of something else.
// Image space.
struct AlignmentGuides {
    // What is to be added to come into line.
    QPointF correction;
    // Along what it lies then.
    std::vector<QLineF> lines;

    // A rectangle within `tolerance` of any of the targets, each axis by itself.
    [[nodiscard]] static AlignmentGuides of(const QRectF &moving, std::span<const QRectF> targets,
                                            double tolerance);
};

} // namespace tembra
