#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tembra {

class TembraProcess;

// The paths of the captures in a folder, newest first, as the file system tells it: nothing of the program is
// used.
[[nodiscard]] QStringList listedNewestFirst(const QString &folder, const QStringList &names);

// Waits until the shelf shows exactly these, the pinned ones before the others. How it differs at the end of
// the patience.
[[nodiscard]] std::optional<QString> shelfDiffers(const TembraProcess &tembra, const QStringList &paths);

} // namespace tembra
