#pragma once

#include "base/Result.h"

#include <QString>

namespace tembra {

// `tembra scan`: what is recognised as a capture in a folder, as lines to read or as JSON. Needs no running
// program.
[[nodiscard]] Result<QString> scanFolder(const QString &folder, bool json);

} // namespace tembra
