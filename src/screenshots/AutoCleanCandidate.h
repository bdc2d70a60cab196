#pragma once

#include "base/Clocks.h"
#include "screenshots/ScreenshotFileIdentity.h"

#include <QString>

#include <cstdint>

namespace tembra {

// A file that auto-clean found old enough to go to the Trash. A value.
struct AutoCleanCandidate {
    QString path;
    // When it was scanned.
    ScreenshotFileIdentity identity;
    Instant createdAt{};
    Instant modifiedAt{};
    // In bytes.
    std::uint64_t size = 0;

    bool operator==(const AutoCleanCandidate &) const = default;
};

} // namespace tembra
