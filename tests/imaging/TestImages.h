#pragma once

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QImageReader>
#include <QRandomGenerator>

namespace tembra {

// Flat areas, edges, gradients and noise; with every alpha when it is transparent.
inline QImage testImage(QSize size, QImage::Format format, quint32 seed = 1) {
    QRandomGenerator random(seed);
    QImage image(size, format);
    const bool isTransparent = image.hasAlphaChannel();
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool isNoisy = x > size.width() / 2 && y > size.height() / 3;
            const int value = isNoisy ? static_cast<int>(random.bounded(256)) : x / 9 * 40 % 256;
            image.setPixel(x, y,
                           qRgba(value, (x + y) % 256, 255 - value, isTransparent ? (x * y) % 256 : 255));
        }
    }
    return image;
}

// Bars and letters, as interfaces have them, with noise in the upper part of the given share.
inline QImage drawnImage(QSize size, QImage::Format format, double noisyShare) {
    QRandomGenerator random(3);
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool isNoisy = y < noisyShare * size.height();
            const QRgb ink = (x * x / 7 + y / 9 * 31) % 23 < 5 && y % 9 < 6 ? 0xff20'3040 : 0xfff0'f0e0;
            image.setPixel(x, y, isNoisy ? random.generate() | 0xff00'0000 : ink);
        }
    }
    if (image.hasAlphaChannel())
        image.setPixel(size.width() - 1, size.height() - 1, 0x0012'3456);
    return image;
}

// Every pixel noise.
inline QImage noise(QSize size, QImage::Format format, quint32 seed = 2) {
    QRandomGenerator random(seed);
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random.generate() | (image.hasAlphaChannel() ? 0U : 0xff00'0000U));
    }
    return image;
}

inline QByteArray writtenByQt(const QImage &image, const char *format, int quality = -1) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return bytes;
}

// As Qt, another reader than ours, sees a file: upright, four bytes a pixel, as they are stored.
inline QImage readByQt(const QByteArray &bytes) {
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    image.setColorSpace({});
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

// The largest difference of two channels' values.
inline int difference(const QImage &one, const QImage &other) {
    if (one.size() != other.size() || one.depth() != 32 || other.depth() != 32)
        return 256;
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int i = 0; i < 4 * one.width(); ++i)
            largest = std::max(largest, std::abs(one.constScanLine(y)[i] - other.constScanLine(y)[i]));
    }
    return largest;
}

} // namespace tembra
