#pragma once

#include "base/Result.h"

namespace tembra {

// Gives one open file the owner, group, permissions, access list and attributes of another. An owner that
// this user may not give is left out; then nobody may do more with the file than with the other.
[[nodiscard]] Result<void> makeLike(int file, int model);

} // namespace tembra
