#pragma once

#include "base/Clocks.h"

#include <cstdint>

namespace tembra {

// What changes whenever a file is replaced or rewritten, and costs one system call.
struct FileVersion {
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    Instant modifiedAt{};
    // The last change of content, attributes or name.
    Instant changedAt{};

    bool operator==(const FileVersion &) const = default;
};

} // namespace tembra
