#pragma once

#include "platform/HeldFile.h"
#include "platform/Volumes.h"
#include "screenshots/ScreenshotFileIdentity.h"

#include <QString>
#include <QUuid>

#include <memory>
#include <optional>

namespace tembra {

// One file of the file tray: a reference to where the file is, never a copy. A value.
struct ClipboardEntry {
    QUuid id;
    // Where the file was when it was added.
    QString originalPath;
    // Follows the file; nothing where the identity alone must find it.
    std::shared_ptr<const HeldFile> reference;
    // Of the file that is at the path: another program may have put a new one in its place.
    ScreenshotFileIdentity identity;
    // Where the file is, to tell a file that was deleted from one whose disk is not connected.
    std::optional<Volume> volume;
    QString lastKnownPath;
    // The file can be reached now.
    bool available = true;
    bool isFolder = false;
    // Of the file's content, as last seen.
    Instant modifiedAt{};

    bool operator==(const ClipboardEntry &) const = default;
};

} // namespace tembra
