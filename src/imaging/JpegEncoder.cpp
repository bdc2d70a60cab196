#include "imaging/JpegEncoder.h"

#include "imaging/ExifFields.h"

#include <QPainter>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <turbojpeg.h>
#include <utility>

namespace tembra {

namespace {

struct Release {
    void operator()(void *handle) const { tjDestroy(handle); }
    void operator()(unsigned char *bytes) const { tjFree(bytes); }
};

constexpr int longestSide = 65'500;
// From here on colours are as sharp as brightness.
constexpr double sharpQuality = 0.9;
constexpr int pixelFormat = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TJPF_BGRX : TJPF_XRGB;
// The image's start and the JFIF segment with its length, as the compressor writes them.
constexpr qsizetype jfifEnd = 20;
constexpr qsizetype densityOffset = 13;

QImage onWhite(const QImage &image) {
    if (!image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_RGB32);
    QImage paper(image.size(), QImage::Format_RGB32);
    if (paper.isNull())
        return paper;
    paper.fill(Qt::white);
    QImage ink = image;
    ink.setDevicePixelRatio(1);
    QPainter(&paper).drawImage(0, 0, ink);
    return paper;
}

quint16 perInch(int dotsPerMeter) {
    return static_cast<quint16>(std::clamp(std::lround(dotsPerMeter * 0.0254), 1L, 65'535L));
}

QByteArray exifSegment(const PictureMetadata &metadata) {
    const QByteArray content = writeExif(metadata);
    QByteArray front("\xff\xe1\0\0", 4);
    qToBigEndian(static_cast<quint16>(content.size() + 2), front.data() + 2);
    return front + content;
}

} // namespace

std::optional<QByteArray> encodeJpeg(const QImage &image, double quality, const PictureMetadata &metadata) {
    if (image.isNull() || std::max(image.width(), image.height()) > longestSide)
        return std::nullopt;
    const QImage picture = onWhite(image);
    const std::unique_ptr<void, Release> handle(tjInitCompress());
    if (!handle || picture.isNull())
        return std::nullopt;
    unsigned char *bytes = nullptr;
    unsigned long size = 0;
    const int percent = std::clamp(static_cast<int>(std::lround(quality * 100)), 1, 100);
    const int status =
        tjCompress2(handle.get(), picture.constBits(), picture.width(),
                    static_cast<int>(picture.bytesPerLine()), picture.height(), pixelFormat, &bytes, &size,
                    quality >= sharpQuality ? TJSAMP_444 : TJSAMP_420, percent, TJFLAG_ACCURATEDCT);
    const std::unique_ptr<unsigned char, Release> owner(bytes);
    if (status != 0 || size <= static_cast<unsigned long>(jfifEnd))
        return std::nullopt;
    const QByteArrayView written(bytes, static_cast<qsizetype>(size));
    const QByteArray exif = exifSegment(metadata);
    QByteArray file;
    file.reserve(written.size() + exif.size());
    file.append(written.first(jfifEnd));
    if (metadata.dotsPerMeter) {
        file[densityOffset] = 1;
        qToBigEndian(perInch(metadata.dotsPerMeter->width()), file.data() + densityOffset + 1);
        qToBigEndian(perInch(metadata.dotsPerMeter->height()), file.data() + densityOffset + 3);
    }
    file.append(exif);
    file.append(written.sliced(jfifEnd));
    return file;
}

} // namespace tembra
