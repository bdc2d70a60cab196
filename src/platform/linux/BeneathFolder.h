#pragma once

#include "base/Result.h"
#include "platform/linux/Descriptor.h"

#include <QByteArray>

namespace tembra {

enum class MissingFolders { fail, areMade };

// Opens a folder that lies beneath the open one, as a place to name files in. No link on the way is followed
// and no other mount entered, also when names change meanwhile: ELOOP or EXDEV. The path is relative and
// holds no "..". Empty: the folder itself.
[[nodiscard]] Result<Descriptor> openBeneath(int root, const QByteArray &path, MissingFolders missing);
// The same, folder by folder, for kernels that cannot do it in one step.
[[nodiscard]] Result<Descriptor> walkBeneath(int root, const QByteArray &path, MissingFolders missing);

} // namespace tembra
