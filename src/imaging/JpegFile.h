#pragma once

#include "imaging/PictureHeader.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace tembra {

// What the segments of a JPEG file (ITU-T T.81, annex B) say ahead of its pixels.
struct JpegFile {
    PictureHeader header;
    // One for grey, three for colours, four for those of print.
    int components = 0;
    // Empty when there is none or it is not whole.
    QByteArray colourProfile;
};

// Nothing when the bytes are no JPEG file or their head is damaged.
[[nodiscard]] std::optional<JpegFile> readJpegFile(QByteArrayView bytes);

} // namespace tembra
