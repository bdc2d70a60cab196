#include "imaging/PictureHeader.h"

#include "imaging/JpegFile.h"
#include "imaging/PngInfo.h"

namespace tembra {

std::optional<PictureHeader> readPictureHeader(QByteArrayView bytes) {
    if (const auto png = readPngInfo(bytes))
        return png->header;
    if (const auto jpeg = readJpegFile(bytes))
        return jpeg->header;
    return std::nullopt;
}

} // namespace tembra
