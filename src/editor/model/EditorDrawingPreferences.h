#pragma once

#include "editor/model/EditorColor.h"
#include "platform/UserDefaults.h"

namespace tembra {

// What the editor remembers of the last drawing. Main thread.
struct EditorDrawingPreferences {
    static constexpr EditorColor defaultColor{1.0, 0.30980392156862746, 0.3411764705882353, 1.0};

    // The last colour chosen; the default where none is kept or what is kept is no colour.
    [[nodiscard]] static EditorColor color(const UserDefaults &defaults);
    static void setColor(UserDefaults &defaults, const QColor &color);
};

} // namespace tembra
