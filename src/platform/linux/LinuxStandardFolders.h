#pragma once

#include "platform/StandardFolders.h"

namespace tembra {

// The XDG folders (XDG Base Directory, xdg-user-dirs); the program's own below TEMBRA_HOME when that is set.
[[nodiscard]] StandardFolders linuxStandardFolders();

} // namespace tembra
