#pragma once

#include "platform/FileCoordinator.h"
#include "platform/Pasteboard.h"

#include <QByteArray>
#include <QString>

namespace tembra {

// Puts a rendered image on the clipboard as an image and as a file, so that programs paste the one or the
// other. The file is a copy in a folder of its own, for this user alone.
struct EditorImageClipboard {
    // Writes the copy into a new folder in `root`, named after the screenshot at `source`; gives its path.
    // Any thread.
    [[nodiscard]] static Result<QString> prepare(const QByteArray &png, const QString &source,
                                                 const QString &root, const FileCoordinator &files);
    // Main thread.
    [[nodiscard]] static Result<void> write(const QByteArray &png, const QString &file,
                                            Pasteboard &pasteboard);
    // Removes a prepared copy with its folder. Any thread.
    static void discard(const QString &file);
};

} // namespace tembra
