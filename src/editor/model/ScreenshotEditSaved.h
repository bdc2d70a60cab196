#pragma once

#include "base/Result.h"
#include "editor/model/ScreenshotEditLoaded.h"

namespace tembra {

// What a save leads to. A value.
struct ScreenshotEditSaved {
    // The file that was written.
    QString path;
    ScreenshotEditRecord record;
    // The rendered image as PNG, for the clipboard, or why there is none.
    Result<QByteArray> clipboardPNG;
    // The state after the save, for the document's baseline.
    ScreenshotEditLoaded loaded;
};

} // namespace tembra
