#pragma once

#include "editor/model/EditorColor.h"

#include <QString>

namespace tembra {

// What a text annotation says. Lengths in pixels of the image.
struct EditorText {
    // As typed.
    QString string;
    double fontSize = 0;
    // Transparent for none.
    EditorColor background;
    // Where the text wraps.
    double maximumWidth = 0;

    [[nodiscard]] bool isValid() const {
        return string.size() <= 100'000 && fontSize >= 8 && fontSize <= 256 && maximumWidth >= 1 &&
               maximumWidth <= 100'000 && background.isValid();
    }

    bool operator==(const EditorText &) const = default;
};

} // namespace tembra
