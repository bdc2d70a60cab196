#pragma once

#include <QStringView>

namespace tembra {

// Whether a file is called as the screenshot tool of macOS calls captures: one of its prefixes, or
// `customPrefix` when that is not empty, followed by a date and time. `baseName` is the name without
// extension.
[[nodiscard]] bool isCaptureName(QStringView baseName, bool isVideo, QStringView customPrefix);

} // namespace tembra
