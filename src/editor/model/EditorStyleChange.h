#pragma once

#include "editor/model/EditorBlur.h"
#include "editor/model/EditorColor.h"

#include <cstdint>
#include <optional>

namespace tembra {

// What the user changes of a style, by the controls or by keys: only what is set. A value.
struct EditorStyleChange {
    std::optional<EditorColor> color;
    // As EditorStyle has it.
    std::optional<double> size;
    // Larger, or smaller, by so many steps of the size that is.
    int sizeSteps = 0;
    std::optional<bool> isFilled;
    std::optional<bool> hasBackground;
    std::optional<EditorBlur::Strength> strength;
    // The value of a number.
    std::optional<std::int64_t> number;
    // Takes the bend from arrows.
    bool straightens = false;

    bool operator==(const EditorStyleChange &) const = default;
};

} // namespace tembra
