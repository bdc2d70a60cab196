#pragma once

#include "base/Result.h"

#include <QString>

namespace tembra {

class ScreenCapturePreferences;

// Points the desktop's screenshot tool at a folder.
struct ScreenshotSaveLocation {
    static inline const QString errorDomain = QStringLiteral("Tembra.ScreenshotSaveLocation");

    // When the tool does not take the folder its old setting is put back. Errors: "Cocoa" when the folder
    // cannot be written to, else the domain above with a recovery suggestion.
    [[nodiscard]] static Result<void> setFolder(const QString &folder, ScreenCapturePreferences &preferences);
};

} // namespace tembra
