#pragma once

#include "controls/Icons.h"
#include "editor/model/EditorTool.h"

#include <QString>

namespace tembra {

// How a tool is shown: its name, the letter that chooses it, its drawing.
struct EditorToolAppearance {
    QString name;
    QChar letter;
    Icon icon;

    [[nodiscard]] static EditorToolAppearance of(EditorTool tool);
};

} // namespace tembra
