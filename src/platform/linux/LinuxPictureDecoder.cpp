#include "platform/linux/LinuxPictureDecoder.h"

#include "platform/linux/ThumbnailDecoder.h"

#include <limits>

namespace tembra {

Result<QImage> LinuxPictureDecoder::decode(const QString &path) const {
    constexpr int unreduced = std::numeric_limits<int>::max();
    auto picture = decodeReduced(path, unreduced);
    if (picture && !*picture)
        picture = decodeReducedHeif(path, unreduced);
    if (!picture)
        return failure(picture.error());
    if (!*picture)
        return failure(unreadablePicture());
    return (*picture)->image;
}

} // namespace tembra
