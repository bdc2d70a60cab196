#pragma once

#include "base/Result.h"
#include "platform/linux/Descriptor.h"

#include <QImage>

namespace tembra {

// The picture in grey as the recognition worker wants it, in a file in memory that has no name and goes with
// its last descriptor. Error: "POSIX" with the errno.
[[nodiscard]] Result<Descriptor> pictureInMemory(const QImage &image);

} // namespace tembra
