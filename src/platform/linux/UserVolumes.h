#pragma once

#include <QStringList>

namespace tembra {

// Where disks are mounted that the user may write to, but for the system's own places. Nothing on another
// machine is touched. Any thread.
[[nodiscard]] QStringList userVolumes();

} // namespace tembra
