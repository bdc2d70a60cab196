#pragma once

#include "shelf/ScreenshotFolderState.h"

#include <QString>

#include <optional>

namespace tembra {

// What the shelf announces when the state of the screenshots folder turned from one into another; nothing
// when there is nothing the user should know at once, as while the program starts.
[[nodiscard]] std::optional<QString> folderNotification(std::optional<ScreenshotFolderState> before,
                                                        ScreenshotFolderState now);

} // namespace tembra
