#pragma once

#include "imaging/PictureHeader.h"

#include <QByteArrayView>

#include <optional>

namespace tembra {

// What the chunks of a PNG file of any kind (ISO/IEC 15948) tell whoever decodes it.
struct PngInfo {
    PictureHeader header;
    // Nothing in the file says that its colours are other than those of sRGB.
    bool isSrgb = true;
    // The last chunk is there.
    bool isWhole = false;
};

// Nothing when the bytes are no PNG file or its head is damaged.
[[nodiscard]] std::optional<PngInfo> readPngInfo(QByteArrayView bytes);

} // namespace tembra
