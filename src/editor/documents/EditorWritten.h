#pragma once

#include "editor/model/ScreenshotEditLoaded.h"
#include "platform/FileFacts.h"
#include "screenshots/Shot.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tembra {

// What the editor wrote. A value.
struct EditorWritten {
    QString path;
    // What is there now.
    std::optional<FileFacts> facts;
    // What the file system knew the file by.
    std::optional<ScreenshotFileIdentity> before;
    // The state of the document whose file it is, when it is one's.
    std::optional<ScreenshotEditLoaded> loaded;
    // What was saved, as PNG; may be missing.
    QByteArray png;

    // The screenshot that was written in the place of another.
    [[nodiscard]] Shot shot(Shot replaced) const;
};

} // namespace tembra
