#pragma once

#include <array>

namespace tembra {

// How strongly a blur annotation hides what is beneath it. The numbers are the standard deviation of the
// Gaussian in pixels of the image.
struct EditorBlur {
    enum class Strength { light = 8, medium = 16, strong = 28 };

    // The weakest first.
    static constexpr std::array strengths{Strength::light, Strength::medium, Strength::strong};

    Strength strength = Strength::medium;

    bool operator==(const EditorBlur &) const = default;
};

} // namespace tembra
