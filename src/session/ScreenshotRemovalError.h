#pragma once

#include "base/Error.h"

namespace tembra {

// Why a screenshot cannot be removed or restored, in the sentences that the user reads.
struct ScreenshotRemovalError {
    [[nodiscard]] static Error pinsUnavailable();
    [[nodiscard]] static Error isPinned();
    [[nodiscard]] static Error hasChanged();
    [[nodiscard]] static Error folderHasChanged();
    [[nodiscard]] static Error folderUnavailable();

    // What the Trash said about a move there.
    [[nodiscard]] static Error ofRemoval(const Error &error);
    // And about a move back.
    [[nodiscard]] static Error ofRestore(const Error &error);
    // The folder is in the way, not the file: it may be there again later.
    [[nodiscard]] static bool isOfFolder(const Error &error);
};

} // namespace tembra
