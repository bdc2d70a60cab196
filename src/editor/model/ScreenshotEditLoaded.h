#pragma once

#include "editor/model/ScreenshotEditRecord.h"
#include "platform/HeldFile.h"
#include "screenshots/ScreenshotFileIdentity.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

namespace tembra {

// A screenshot opened for editing. A value.
struct ScreenshotEditLoaded {
    QString path;
    ScreenshotFileIdentity identity;
    // Follows the file when it is moved.
    std::shared_ptr<const HeldFile> reference;
    // SHA-256 of the file as it was read, in lower-case hexadecimal.
    QString expectedHash;
    // The image file from before the first edit.
    QByteArray original;
    // The original, upright, reduced for display.
    QImage preview;
    // Of the original, upright, in pixels.
    QSize size;
    // "public.png" or "public.jpeg".
    QString type;
    // Kept through every save, as the file's permissions are.
    std::optional<Instant> createdAt;
    ScreenshotEditRecord record;
};

} // namespace tembra
