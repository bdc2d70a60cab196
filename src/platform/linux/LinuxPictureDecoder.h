#pragma once

#include "platform/PictureDecoder.h"

namespace tembra {

// Qt's image plugins, and libheif for what they do not read.
class LinuxPictureDecoder final : public PictureDecoder {
public:
    [[nodiscard]] Result<QImage> decode(const QString &path) const override;
};

} // namespace tembra
