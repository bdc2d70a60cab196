#include "imaging/PictureDecoding.h"

#include "imaging/AreaAverage.h"
#include "imaging/JpegDecoder.h"
#include "imaging/Opacity.h"
#include "imaging/PageBuffer.h"
#include "imaging/PictureLimits.h"
#include "imaging/PngInfo.h"
#include "imaging/PngRows.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QTransform>

#include <algorithm>
#include <limits>
#include <mutex>
#include <utility>

namespace tembra {

namespace {

constexpr int unreduced = std::numeric_limits<int>::max();
// What is kept for the next picture.
constexpr std::size_t mostKeptBytes = std::size_t{48} << 20;

// The size at which no side is longer than the given one.
QSize reducedSize(QSize size, int side) {
    const qint64 longest = std::max(size.width(), size.height());
    if (longest <= side)
        return size;
    const auto reduced = [&](int length) {
        return static_cast<int>(std::max<qint64>(1, (qint64{length} * side + longest / 2) / longest));
    };
    return {reduced(size.width()), reduced(size.height())};
}

QImage upright(const QImage &image, int orientation) {
    const auto turned = [](const QImage &picture, int degrees) {
        return picture.transformed(QTransform().rotate(degrees));
    };
    switch (orientation) {
    case 2:
        return image.mirrored(true, false);
    case 3:
        return image.mirrored(true, true);
    case 4:
        return image.mirrored(false, true);
    case 5:
        return turned(image.mirrored(false, true), 90);
    case 6:
        return turned(image, 90);
    case 7:
        return turned(image.mirrored(true, false), 90);
    case 8:
        return turned(image, 270);
    default:
        return image;
    }
}

QImage averaged(const QImage &image, QSize size) {
    if (size == image.size())
        return image;
    const bool isTransparent = image.hasAlphaChannel();
    const QImage source = isTransparent ? image.convertToFormat(QImage::Format_ARGB32_Premultiplied) : image;
    QImage reduced(size, source.format());
    if (reduced.isNull())
        return reduced;
    AreaAverage averages(source.size(), size, 4);
    for (int y = 0, reducedY = 0; y < source.height(); ++y) {
        if (const unsigned char *row = averages.add(source.constScanLine(y)))
            std::copy_n(row, reduced.bytesPerLine(), reduced.scanLine(reducedY++));
    }
    return isTransparent ? std::move(reduced).convertToFormat(QImage::Format_ARGB32) : reduced;
}

std::optional<QImage> decodeCommonPng(QByteArrayView bytes, int maxPixelSize) {
    const auto file = PngFile::read(
        {reinterpret_cast<const unsigned char *>(bytes.data()), static_cast<std::size_t>(bytes.size())});
    if (!file)
        return std::nullopt;
    thread_local PageBuffer buffer;
    const std::size_t pixelBytes = file->head.pixelBytes();
    const std::size_t joinedBytes = file->pieces.size() > 1 ? file->compressedBytes() : 0;
    const auto memory = buffer.take(pixelBytes + joinedBytes);
    if (memory.empty())
        return std::nullopt;
    const auto rows = memory.first(pixelBytes);
    std::optional<QImage> image;
    if (inflateRows(*file, memory.subspan(pixelBytes), rows)) {
        const QSize size = reducedSize(file->head.size, maxPixelSize);
        image = size == file->head.size ? imageOfRows(*file, rows) : reducedImageOfRows(*file, rows, size);
    }
    if (memory.size() > mostKeptBytes)
        buffer.release();
    return image;
}

// Qt refuses what takes more memory than it is told; isDecodable has looked at how much there is.
void raiseAllocationLimit(QSize size) {
    static std::mutex mutex;
    const std::scoped_lock lock(mutex);
    constexpr qint64 mostBytesPerPixel = 8;
    const qint64 needed = qint64{size.width()} * size.height() * mostBytesPerPixel / (1 << 20) + 1;
    if (QImageReader::allocationLimit() != 0 && QImageReader::allocationLimit() < needed)
        QImageReader::setAllocationLimit(static_cast<int>(needed));
}

QImage inSrgb(QImage image, bool isSrgb) {
    const bool isDeep = image.depth() > 32 || image.format() == QImage::Format_Grayscale16;
    const bool isTransparent = image.hasAlphaChannel();
    if (!isSrgb && image.colorSpace().isValid() && image.colorSpace() != QColorSpace(QColorSpace::SRgb)) {
        if (isDeep)
            image.convertTo(isTransparent ? QImage::Format_RGBA64 : QImage::Format_RGBX64);
        else
            image.convertTo(isTransparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
        image.convertToColorSpace(QColorSpace::SRgb);
    }
    image.convertTo(isTransparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (isTransparent && isOpaque(image))
        image.reinterpretAsFormat(QImage::Format_RGB32);
    return image;
}

std::optional<QImage> decodeAnyPng(QByteArrayView bytes, const PngInfo &info, int maxPixelSize) {
    if (!info.isWhole)
        return std::nullopt;
    raiseAllocationLimit(info.header.size);
    auto data = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    reader.setAutoTransform(false);
    const QImage image = reader.read();
    if (image.size() != info.header.size)
        return std::nullopt;
    const QImage picture = inSrgb(image, info.isSrgb);
    return upright(averaged(picture, reducedSize(picture.size(), maxPixelSize)), info.header.orientation);
}

std::optional<QImage> decodeAnyJpeg(QByteArrayView bytes, const JpegFile &file, int maxPixelSize) {
    const auto image = decodeJpeg(bytes, file, maxPixelSize);
    if (!image)
        return std::nullopt;
    return upright(averaged(*image, reducedSize(file.header.size, maxPixelSize)), file.header.orientation);
}

// Neither the density nor the texts of a file are part of its picture.
QImage plain(QImage image) {
    image.setDevicePixelRatio(1);
    image.setColorSpace({});
    const QStringList keys = image.textKeys();
    for (const QString &key : keys)
        image.setText(key, {});
    return image;
}

} // namespace

std::optional<QImage> decodePicture(QByteArrayView bytes, int maxPixelSize) {
    if (maxPixelSize < 1)
        return std::nullopt;
    std::optional<QImage> image;
    if (const auto png = readPngInfo(bytes)) {
        if (!isDecodable(png->header, bytes.size()))
            return std::nullopt;
        image = decodeCommonPng(bytes, maxPixelSize);
        if (!image)
            image = decodeAnyPng(bytes, *png, maxPixelSize);
    } else if (const auto jpeg = readJpegFile(bytes)) {
        if (isDecodable(jpeg->header, bytes.size()))
            image = decodeAnyJpeg(bytes, *jpeg, maxPixelSize);
    }
    if (!image || image->isNull())
        return std::nullopt;
    return plain(std::move(*image));
}

std::optional<QImage> decodePicture(QByteArrayView bytes) {
    return decodePicture(bytes, unreduced);
}

} // namespace tembra
