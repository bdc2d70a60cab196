#pragma once

#include "editor/model/EditorBlur.h"
#include "editor/model/EditorColor.h"

namespace tembra {

// How the next annotation of a tool looks. What its kind has no use for counts for nothing. A value.
struct EditorStyle {
    EditorColor color;
    // In pixels of the image: the width of a stroke, the font size of a text, the diameter of a number.
    double size = 0;
    // Of a shape: filled instead of outlined.
    bool isFilled = false;
    // Of a text: a box in the colour behind contrasting letters, instead of letters in the colour.
    bool hasBackground = true;
    EditorBlur::Strength strength = EditorBlur::Strength::medium;

    bool operator==(const EditorStyle &) const = default;
};

} // namespace tembra
