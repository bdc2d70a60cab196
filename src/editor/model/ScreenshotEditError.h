#pragma once

#include "base/Result.h"

namespace tembra {

// Why a screenshot cannot be opened, rendered, saved or renamed: the sentence is the user's.
struct ScreenshotEditError {
    enum Code {
        notEditable = 1,
        unsupportedType,
        changedBeforeOpening,
        unreadableOriginal,
        unreadableAnnotation,
        unreadableCrop,
        changedBeforeSaving,
        emptyName,
        forbiddenName,
        changedBeforeRenaming,
        unreadableImage,
        notEnoughMemory,
        notPrepared,
        unsupportedFormat,
        notEncoded,
        noBlur,
        unreadableEdits,
    };

    static inline const QString domain = QStringLiteral("Tembra.ScreenshotEdit");

    [[nodiscard]] static Error of(Code code);
};

[[nodiscard]] inline tl::unexpected<Error> editFailure(ScreenshotEditError::Code code) {
    return failure(ScreenshotEditError::of(code));
}

} // namespace tembra
