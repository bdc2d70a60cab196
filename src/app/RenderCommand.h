#pragma once

#include "base/Result.h"

#include <QString>

namespace tembra {

// `tembra render`: draws edits onto an image and writes the result, as PNG or JPEG by the output's name or
// else as the image is. The image itself is never written. Needs no running program, but an application
// object that has fonts. Gives what there is to print.
[[nodiscard]] Result<QString> renderImage(const QString &image, const QString &edits, const QString &output);

} // namespace tembra
