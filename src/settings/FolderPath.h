#pragma once

#include <QString>

namespace tembra {

// The path with links resolved; of what is not there, the clean path.
[[nodiscard]] QString withoutLinks(const QString &path);
// Whether both paths, or what links there lead to, are the same.
[[nodiscard]] bool isSameFolder(const QString &a, const QString &b);
// As the user reads it: what lies in the home folder begins with "~".
[[nodiscard]] QString withHomeShort(const QString &path, const QString &home);

} // namespace tembra
