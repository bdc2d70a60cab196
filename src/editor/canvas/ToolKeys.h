#pragma once

#include "editor/model/BlurMode.h"
#include "editor/model/EditorTool.h"

#include <qnamespace.h>

#include <optional>

namespace tembra {

// What a tool's letter chooses.
struct ToolChoice {
    EditorTool tool = EditorTool::select;
    std::optional<BlurMode> blurMode;

    bool operator==(const ToolChoice &) const = default;
};

// By the letter that the key types, wherever it lies.
[[nodiscard]] constexpr std::optional<ToolChoice> toolForKey(int key) {
    switch (key) {
    case Qt::Key_V:
        return ToolChoice{EditorTool::select, {}};
    case Qt::Key_A:
        return ToolChoice{EditorTool::arrow, {}};
    case Qt::Key_P:
        return ToolChoice{EditorTool::pencil, {}};
    case Qt::Key_C:
        return ToolChoice{EditorTool::crop, {}};
    case Qt::Key_L:
        return ToolChoice{EditorTool::line, {}};
    case Qt::Key_R:
        return ToolChoice{EditorTool::rectangle, {}};
    case Qt::Key_E:
    case Qt::Key_O:
        return ToolChoice{EditorTool::ellipse, {}};
    case Qt::Key_T:
        return ToolChoice{EditorTool::text, {}};
    case Qt::Key_N:
        return ToolChoice{EditorTool::number, {}};
    case Qt::Key_B:
        return ToolChoice{EditorTool::blur, BlurMode::area};
    case Qt::Key_W:
        return ToolChoice{EditorTool::blur, BlurMode::text};
    default:
        return std::nullopt;
    }
}

} // namespace tembra
