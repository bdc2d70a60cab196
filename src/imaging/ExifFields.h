#pragma once

#include "imaging/PictureMetadata.h"

#include <QByteArray>
#include <QByteArrayView>

namespace tembra {

// What is read of a picture's EXIF data; everything else in it is left where it is.
struct ExifFields {
    int orientation = 1;
    PictureMetadata metadata;
};

// From TIFF data as an eXIf chunk of PNG has it, or a JPEG's APP1 segment behind its identifier. What is
// missing or damaged stays as above.
[[nodiscard]] ExifFields readExif(QByteArrayView tiff);

// The content of a JPEG's APP1 segment, identifier included, for an upright picture in sRGB.
[[nodiscard]] QByteArray writeExif(const PictureMetadata &metadata);

} // namespace tembra
