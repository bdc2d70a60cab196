#pragma once

#include "platform/FileCoordinator.h"
#include "platform/linux/DurableFolder.h"

namespace tembra {

// Removes a file of ours that nobody needs, if it holds what is known and nobody is writing to it. Else it is
// somebody's version of `original` and becomes "… copy" beside it, or "… copy 1" and so on.
[[nodiscard]] Result<void> discardOrKeep(const DurableFolder &folder, const QByteArray &name,
                                         const QByteArray &original,
                                         const FileCoordinator::ContentCheck &isKnown);

} // namespace tembra
