#pragma once

#include <QSize>
#include <QString>

#include <optional>

namespace tembra {

// What a picture's file says besides its pixels that is kept when it is written anew. Nothing else is: what
// its user does not see does not leave with it.
struct PictureMetadata {
    // Dots across and down a metre.
    std::optional<QSize> dotsPerMeter;
    // As the file has it: PNG knows no format, EXIF has "2026:11:21 10:15:22".
    QString creationTime;
    // The program that made the picture.
    QString software;

    bool operator==(const PictureMetadata &) const = default;
};

} // namespace tembra
