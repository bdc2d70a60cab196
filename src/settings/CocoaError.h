#pragma once

#include "base/Result.h"

#include <QString>

namespace tembra {

// Failures of file operations that are understood here rather than by the system, in the domain and with the
// codes that macOS gives them, so that logs and stored reports mean the same everywhere.
struct CocoaError {
    enum Code {
        fileReadNoPermission = 257,
        fileReadUnsupportedScheme = 262,
        fileReadNotDirectory = 256,
        fileWriteNoPermission = 513,
        fileWriteFileExists = 516,
    };

    static inline const QString domain = QStringLiteral("Cocoa");
};

[[nodiscard]] inline tl::unexpected<Error> cocoaFailure(CocoaError::Code code, const QString &message) {
    return failure({CocoaError::domain, code, message, {}});
}

} // namespace tembra
