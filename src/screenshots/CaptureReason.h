#pragma once

#include <QString>

namespace tembra {

// What told that a file is a capture: its marker, the metadata inside it, a name as macOS gives it, or one
// that a tool of this platform gives.
enum class CaptureReason { marker, metadata, name, tool };

// "marker", "metadata", "name", "tool".
[[nodiscard]] QString rawValue(CaptureReason reason);

} // namespace tembra
