#pragma once

#include "screenshots/ScreenshotFileIdentity.h"

#include <QString>
#include <QUuid>

namespace tembra {

// One file of the file tray: a reference to where the file is, never a copy. A value.
struct ClipboardEntry {
    QUuid id;
    // Where the file was when it was added.
    QString originalPath;
    // The file's when it was added.
    ScreenshotFileIdentity identity;
    QString lastKnownPath;
    // The file can be reached now.
    bool available = true;
    bool isFolder = false;

    bool operator==(const ClipboardEntry &) const = default;
};

} // namespace tembra
