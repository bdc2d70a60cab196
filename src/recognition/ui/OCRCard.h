#pragma once

#include <QMargins>

namespace tembra {

// What the panel's views have in common: each is a rounded card with the same room around it.
struct OCRCard {
    static constexpr QMargins margins{24, 10, 24, 24};
    static constexpr double radius = 12;
};

} // namespace tembra
