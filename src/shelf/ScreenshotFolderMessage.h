#pragma once

#include "shelf/ScreenshotFolderState.h"
#include "shelf/ScreenshotMessage.h"

#include <optional>

namespace tembra {

// What the screenshots tab says instead of showing the grid; nothing when the grid is to be shown.
[[nodiscard]] std::optional<ScreenshotMessage> screenshotFolderMessage(ScreenshotFolderState state);

// Of a folder without captures.
[[nodiscard]] ScreenshotMessage emptyFolderMessage();

} // namespace tembra
