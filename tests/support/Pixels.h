#pragma once

#include <QBuffer>
#include <QColorSpace>
#include <QImage>

namespace tembra {

// What an image shows, comparable: ARGB32 without a colour space.
inline QImage pixelsOf(const QImage &image) {
    QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    pixels.setColorSpace({});
    return pixels;
}

// Of an image file, as Qt reads it.
inline QImage pixelsOf(const QByteArray &bytes) {
    return pixelsOf(QImage::fromData(bytes));
}

// An image file as Qt writes it.
inline QByteArray encoded(const QImage &image, const char *format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format))
        qFatal("cannot write a picture as %s", format);
    return bytes;
}

} // namespace tembra
