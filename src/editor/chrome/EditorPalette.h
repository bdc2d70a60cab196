#pragma once

#include "editor/model/EditorColor.h"

#include <QString>

#include <vector>

namespace tembra {

// A colour that the dock offers, by its name.
struct EditorPaletteColor {
    QString name;
    EditorColor color;
};

// In the order of the digits that choose them, from 1.
[[nodiscard]] std::vector<EditorPaletteColor> editorPalette();

} // namespace tembra
