#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tembra::recognition {

// One byte a pixel, row by row without gaps, origin top left.
struct GreyPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> levels;

    GreyPicture() = default;
    GreyPicture(int pixelWidth, int pixelHeight, std::uint8_t level = 0)
        : width(pixelWidth),
          height(pixelHeight),
          levels(static_cast<std::size_t>(pixelWidth) * static_cast<std::size_t>(pixelHeight), level) {}

    [[nodiscard]] std::uint8_t *row(int y) { return levels.data() + std::ptrdiff_t{y} * width; }
    [[nodiscard]] const std::uint8_t *row(int y) const { return levels.data() + std::ptrdiff_t{y} * width; }
};

} // namespace tembra::recognition
