#pragma once

#include <QFont>

namespace tembra {

// The type that annotations are written in: Inter where it is installed, else the desktop's own; never fitted
// to a device's pixels, so that it has the same shape at every scale. Any thread.
[[nodiscard]] QFont annotationFont(int pixelSize);

} // namespace tembra
