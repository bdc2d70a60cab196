#pragma once

#include <QSize>

#include <array>

namespace tembra::bench {

// A picture's size and what it comes to, rounded.
struct PictureSize {
    int megapixels = 0;
    QSize pixels;
};

inline constexpr std::array pictureSizes{PictureSize{1, {1'280, 800}}, PictureSize{4, {2'560, 1'600}},
                                         PictureSize{16, {5'120, 3'200}}, PictureSize{64, {10'240, 6'400}}};

} // namespace tembra::bench
