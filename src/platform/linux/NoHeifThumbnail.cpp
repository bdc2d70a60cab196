#include "platform/linux/ThumbnailDecoder.h"

namespace tembra {

Result<std::optional<DecodedPicture>> decodeReducedHeif(const QString &, int) {
    return std::nullopt;
}

} // namespace tembra
