#pragma once

#include "imaging/PictureMetadata.h"
#include "imaging/PictureType.h"

#include <QByteArrayView>
#include <QSize>

#include <optional>

namespace tembra {

// What a PNG or JPEG file says ahead of its pixels.
struct PictureHeader {
    PictureType type = PictureType::png;
    // As stored, before it is turned upright.
    QSize size;
    // As EXIF has it, 1 … 8: how the stored picture is to be turned.
    int orientation = 1;
    // Not an animation.
    bool isSingleImage = true;
    PictureMetadata metadata;
    // As stored, before compression.
    int bitsPerPixel = 1;

    [[nodiscard]] QSize uprightSize() const { return orientation >= 5 ? size.transposed() : size; }

    bool operator==(const PictureHeader &) const = default;
};

// From a file's bytes, which may be anything. Nothing when they are neither PNG nor JPEG or their head is
// damaged. Any thread; looks at no pixels and needs no memory for them.
[[nodiscard]] std::optional<PictureHeader> readPictureHeader(QByteArrayView bytes);

} // namespace tembra
