#pragma once

#include "platform/StandardFolders.h"

#include <QString>

#include <optional>

namespace tembra {

// The folder that a screenshot tool's raw location stands for: an absolute path, "~" or a path below "~/".
// Anything else means the Desktop. The result is clean and absolute, without a final slash; links are kept.
[[nodiscard]] QString detectedFolder(const std::optional<QString> &location, const StandardFolders &folders);

} // namespace tembra
