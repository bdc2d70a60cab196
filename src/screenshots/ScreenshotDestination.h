#pragma once

#include "platform/StandardFolders.h"

#include <QString>

namespace tembra {

class ScreenCapturePreferences;

// Where the desktop's screenshot tool saves now. A value.
struct ScreenshotDestination {
    enum class Kind { folder, other, clipboard };

    Kind kind = Kind::folder;
    // Absolute and clean; of `folder` only.
    QString folder;
    // The tool's own word for where it saves, in lower case; of `other` only.
    QString target;

    [[nodiscard]] static ScreenshotDestination toFolder(const QString &path) {
        return {Kind::folder, path, {}};
    }
    [[nodiscard]] static ScreenshotDestination toOther(const QString &name) {
        return {Kind::other, {}, name};
    }
    [[nodiscard]] static ScreenshotDestination toClipboard() { return {Kind::clipboard, {}, {}}; }

    // Reads the tool's preferences, which are brought up to date first. On the thread of `preferences`.
    [[nodiscard]] static ScreenshotDestination read(ScreenCapturePreferences &preferences,
                                                    const StandardFolders &folders);

    bool operator==(const ScreenshotDestination &) const = default;
};

} // namespace tembra
