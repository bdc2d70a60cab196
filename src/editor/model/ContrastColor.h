#pragma once

#include "editor/model/EditorColor.h"

namespace tembra {

// From 0 (black) to 1 (white), as WCAG 2.1 defines it. Alpha plays no part.
[[nodiscard]] double relativeLuminance(const EditorColor &color);

// What is read best on a colour and sets it off from its surroundings: white wherever it reaches the contrast
// that WCAG asks of large type, else nearly black.
[[nodiscard]] EditorColor contrasting(const EditorColor &color);

// White, which goes with most colours, unless the colour is hardly darker itself.
[[nodiscard]] EditorColor rimColor(const EditorColor &color);

} // namespace tembra
