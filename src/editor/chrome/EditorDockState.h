#pragma once

#include "editor/model/BlurMode.h"
#include "editor/model/EditorBlur.h"
#include "editor/model/EditorColor.h"
#include "editor/model/EditorTool.h"

#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>

namespace tembra {

// What the dock shows: the tool in use, and of its style, or of that of the selected annotations, what can be
// set. A control is shown while its value is set. A value.
struct EditorDockState {
    EditorTool tool = EditorTool::select;
    std::optional<EditorColor> color;
    // In pixels of the image, with its bounds.
    std::optional<double> size;
    double smallestSize = 1;
    double largestSize = 100;
    std::optional<bool> isFilled;
    std::optional<bool> hasBackground;
    std::optional<BlurMode> blurMode;
    std::optional<EditorBlur::Strength> strength;
    // The value of the selected number.
    std::optional<std::int64_t> number;
    // A selected arrow is bent.
    bool canStraighten = false;
    // While the crop is drawn: its size, in pixels of the image. Takes the place of the style's controls.
    std::optional<QSize> crop;
    // A quiet line above the dock; empty for none.
    QString notice;
    // Something is under way that the notice tells of.
    bool isBusy = false;

    bool operator==(const EditorDockState &) const = default;
};

} // namespace tembra
