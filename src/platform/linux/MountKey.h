#pragma once

#include "base/Result.h"

#include <compare>
#include <cstdint>

namespace tembra {

// Where an open folder is: files can be renamed between two folders for which this is equal.
struct MountKey {
    std::uint64_t device = 0;
    // The device where the kernel does not tell mounts apart.
    std::uint64_t mount = 0;

    auto operator<=>(const MountKey &) const = default;
};

[[nodiscard]] Result<MountKey> mountKeyOf(int descriptor);

} // namespace tembra
