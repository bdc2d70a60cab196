#pragma once

#include <QRectF>

#include <vector>

namespace tembra {

// What something that is moved or resized stays within, and what it comes into line with within a tolerance.
// Image space.
struct AlignmentSurroundings {
    QRectF limits;
    std::vector<QRectF> targets;
    double tolerance = 0;
};

} // namespace tembra
