#pragma once

#include "base/Result.h"

#include <QImage>
#include <QString>

namespace tembra {

// Decodes pictures of every kind that captures come in. Any thread.
class PictureDecoder {
public:
    virtual ~PictureDecoder() = default;
    // In full size, upright.
    [[nodiscard]] virtual Result<QImage> decode(const QString &path) const = 0;
};

} // namespace tembra
