#pragma once

#include <QString>

#include <optional>

namespace tembra {

// Makes a hidden file in the folder to try things with, which whoever made it removes; gives its path.
// Nothing where none can be made. Any thread.
[[nodiscard]] std::optional<QString> makeProbeFile(const QString &folder);

} // namespace tembra
