#pragma once

#include "screenshots/Shot.h"
#include "tray/ClipboardEntry.h"

#include <QString>

#include <vector>

namespace tembra {

// One file that was moved to the Trash, with what is needed to bring it back as it was. A value.
struct RemovedScreenshot {
    // As it was on the shelf.
    Shot shot;
    QString originalPath;
    QString trashPath;
    // When it was moved.
    ScreenshotFileIdentity identity;
    // What stood for it in the file tray.
    std::vector<ClipboardEntry> trayEntries;
};

} // namespace tembra
