#pragma once

#include "editor/model/EditorObjectClipboard.h"
#include "editor/model/ScreenshotEditDocument.h"
#include "support/FakePasteboard.h"

namespace tembra {

// What opening a screenshot of that size gives.
inline ScreenshotEditLoaded loadedWith(std::vector<ScreenshotAnnotation> annotations, QSize size) {
    ScreenshotEditLoaded loaded{.expectedHash = QStringLiteral("hash"), .size = size};
    loaded.record.annotations = std::move(annotations);
    return loaded;
}

// Hands to a paste what was copied.
inline void offerWhatWasCopied(FakePasteboard &pasteboard) {
    if (!pasteboard.items.empty())
        pasteboard.offered.setData(EditorObjectClipboard::type, pasteboard.items.front().data);
}

} // namespace tembra
