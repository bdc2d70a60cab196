#pragma once

#include "editor/model/ScreenshotAnnotation.h"
#include "platform/Pasteboard.h"

#include <optional>
#include <vector>

namespace tembra {

// Carries annotations between documents and windows over the clipboard, as JSON of a type that no other
// program knows. Main thread.
struct EditorObjectClipboard {
    static inline const QString type = QStringLiteral("local.dova.Pavrell.annotation");

    // Takes the place of whatever was on the clipboard.
    [[nodiscard]] static Result<void> write(const std::vector<ScreenshotAnnotation> &annotations,
                                            Pasteboard &pasteboard);
    // Nothing when there is none, or anything about it is not as it should be.
    [[nodiscard]] static std::optional<std::vector<ScreenshotAnnotation>> read(Pasteboard &pasteboard);
    // What the bytes of that type say: any thread.
    [[nodiscard]] static std::optional<std::vector<ScreenshotAnnotation>> decode(QByteArrayView payload);
};

} // namespace tembra
