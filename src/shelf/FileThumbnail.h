#pragma once

#include <QImage>
#include <QRectF>

namespace tembra {

// A small picture of a file, shared between the cells that show it.
struct FileThumbnail {
    QImage image;
    // The part of the image that holds content, in its points.
    QRectF contentRect;
    // A picture of the content, not of the kind of file.
    bool isThumbnail = false;
};

} // namespace tembra
