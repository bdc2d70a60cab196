#pragma once

#include <cstdint>
#include <optional>

namespace tembra {

// The badge of a number annotation. Lengths in pixels of the image.
struct EditorNumber {
    static constexpr std::int64_t largest = 9'999;

    std::int64_t value = 1;
    double diameter = 0;
    // Nothing: follows the diameter.
    std::optional<double> fontSize;

    [[nodiscard]] double resolvedFontSize() const {
        const bool isShort = value > -100 && value < 100;
        return fontSize.value_or(diameter * (isShort ? 0.46 : 0.3));
    }
    [[nodiscard]] bool isValid() const {
        return value != 0 && value <= largest && diameter >= 16 && diameter <= 1'024 &&
               (!fontSize || (*fontSize >= 8 && *fontSize <= 256));
    }

    bool operator==(const EditorNumber &) const = default;
};

} // namespace tembra
