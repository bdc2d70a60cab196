#pragma once

#include "editor/model/ScreenshotAnnotation.h"

#include <optional>

namespace tembra {

// The tools of the editor, by the numbers under which they are kept.
enum class EditorTool { select, arrow, pencil, crop, line, rectangle, ellipse, text, number, blur };

[[nodiscard]] constexpr std::optional<EditorTool> editorTool(int rawValue) {
    if (rawValue < 0 || rawValue > static_cast<int>(EditorTool::blur))
        return std::nullopt;
    return static_cast<EditorTool>(rawValue);
}

// What the tool draws; nothing for one that draws nothing.
[[nodiscard]] constexpr std::optional<ScreenshotAnnotation::Kind> annotationKind(EditorTool tool) {
    using Kind = ScreenshotAnnotation::Kind;
    switch (tool) {
    case EditorTool::select:
    case EditorTool::crop:
        return std::nullopt;
    case EditorTool::arrow:
        return Kind::arrow;
    case EditorTool::pencil:
        return Kind::pencil;
    case EditorTool::line:
        return Kind::line;
    case EditorTool::rectangle:
        return Kind::rectangle;
    case EditorTool::ellipse:
        return Kind::ellipse;
    case EditorTool::text:
        return Kind::text;
    case EditorTool::number:
        return Kind::number;
    case EditorTool::blur:
        return Kind::blur;
    }
    return std::nullopt;
}

} // namespace tembra
