#pragma once

#include "base/Result.h"
#include "screenshots/Shot.h"

#include <QString>

#include <functional>
#include <optional>

namespace tembra {

// What the shelf is told and asked, at the latest by the end of EditorDocuments. Main thread.
struct EditorDocumentsHooks {
    // A file is about to be written for the screenshot. Always followed by `finishWrite`, before the next.
    std::function<void(const Shot &)> beginSave;
    // It was written there, or nothing was.
    std::function<void(const std::optional<QString> &path)> finishWrite;
    std::function<Result<void>(const QString &path, const ScreenshotFileIdentity &)> trash;
};

} // namespace tembra
