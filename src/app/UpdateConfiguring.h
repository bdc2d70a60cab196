#pragma once

#include "platform/StandardFolders.h"
#include "updates/UpdateConfiguration.h"

namespace tembra {

// Where this build, as it is installed here, gets its updates from. Needs the application object with its
// version.
[[nodiscard]] UpdateConfiguration updateConfiguration(const StandardFolders &folders);

} // namespace tembra
