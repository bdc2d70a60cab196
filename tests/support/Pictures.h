#pragma once

#include "support/Pixels.h"

namespace tembra {

// A picture that does not compress to nothing, written by Qt as "png", "jpg" or "tiff".
inline QByteArray pictureBytes(const char *format, const QSize &size = QSize(64, 48)) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 37 % 256, y * 59 % 256, x * y % 256));
    }
    return encoded(image, format);
}

} // namespace tembra
