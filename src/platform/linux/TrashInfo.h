#pragma once

#include "base/Clocks.h"

#include <QByteArray>

#include <cstddef>

namespace tembra {

// What is written beside a trashed file (freedesktop.org, Trash 1.0).

inline constexpr auto trashInfoSuffix = ".trashinfo";

// The content of a .trashinfo file.
[[nodiscard]] QByteArray trashInfo(const QByteArray &originalPath, Instant deletedAt);
// The name for a file in the Trash: its own for the first try, then "name.2.png" and so on. The name with
// the suffix of its .trashinfo is at most `limit` bytes long.
[[nodiscard]] QByteArray trashName(const QByteArray &name, int attempt, qsizetype limit);

} // namespace tembra
