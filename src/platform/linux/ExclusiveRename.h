#pragma once

#include <QByteArray>

namespace tembra {

// Renames from one open folder into another without ever replacing what has the new name: EEXIST. Gives 0 or
// the errno. File systems that cannot promise this (some network ones) are asked before whether the name is
// free: of two ways that is the one after which a file never has two names or none.
[[nodiscard]] int renameExclusively(int fromFolder, const QByteArray &fromName, int toFolder,
                                    const QByteArray &toName);

} // namespace tembra
