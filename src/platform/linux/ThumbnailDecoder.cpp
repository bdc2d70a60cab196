#include "platform/linux/ThumbnailDecoder.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QImageReader>

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

namespace tembra {

namespace {

// Beyond this a picture costs seconds and gigabytes for a thumbnail.
constexpr qint64 mostPixels = 400'000'000;
constexpr qint64 largePixels = 32'000'000;
constexpr int allocationLimitMegabytes = 1024;

void raiseAllocationLimit() {
    static std::once_flag once;
    std::call_once(once, [] {
        const int limit = QImageReader::allocationLimit();
        if (limit != 0 && limit < allocationLimitMegabytes)
            QImageReader::setAllocationLimit(allocationLimitMegabytes);
    });
}

// Large pictures are decoded one at a time, so that memory stays that of one.
std::unique_lock<std::mutex> turnForLarge(qint64 pixels) {
    static std::mutex large;
    return pixels > largePixels ? std::unique_lock(large) : std::unique_lock<std::mutex>();
}

// Qt averages areas in some formats only; in the others it picks pixels, which makes text ragged.
QImage averageable(const QImage &image) {
    switch (image.format()) {
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32_Premultiplied:
    case QImage::Format_RGBX64:
    case QImage::Format_RGBA64_Premultiplied:
        return image;
    default:
        return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                             : QImage::Format_RGB32);
    }
}

Error pictureTooLarge() {
    return {screenshotThumbnailErrorDomain,
            2,
            QCoreApplication::translate("Thumbnails", "The picture is too large for a preview."),
            {}};
}

} // namespace

Error unreadablePicture() {
    return {screenshotThumbnailErrorDomain,
            1,
            QCoreApplication::translate("Thumbnails", "The picture couldn’t be read."),
            {}};
}

QImage forScreens(QImage image) {
    if (image.colorSpace().isValid() && image.colorSpace() != QColorSpace(QColorSpace::SRgb))
        image.convertToColorSpace(QColorSpace::SRgb);
    image.setColorSpace({});
    const bool isTransparent = image.hasAlphaChannel();
    return std::move(image).convertToFormat(isTransparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

DecodedPicture reduced(const QImage &image, int side) {
    if (std::max(image.width(), image.height()) <= side)
        return {image, false};
    const QSize size = image.size().scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
    return {averageable(image).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), true};
}

Result<std::optional<DecodedPicture>> decodeReduced(const QString &path, int side) {
    raiseAllocationLimit();
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead())
        return std::nullopt;
    const QSize size = reader.size();
    const qint64 pixels = qint64{size.width()} * size.height();
    if (pixels > mostPixels)
        return failure(pictureTooLarge());
    const bool reduces = size.isValid() && std::max(size.width(), size.height()) > side;
    // The side is a square's, so it does not matter that the picture may be turned afterwards.
    // Qt's own scaling of PNG picks pixels and confines them to a palette; it does save memory.
    const bool scalesWell = reader.format() != "png" || pixels > largePixels;
    if (reduces && scalesWell && reader.supportsOption(QImageIOHandler::ScaledSize))
        reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const auto turn = turnForLarge(pixels);
    const QImage image = reader.read();
    if (image.isNull())
        return failure(unreadablePicture());
    DecodedPicture picture = reduced(image, side);
    picture.image = forScreens(std::move(picture.image));
    picture.wasReduced = picture.wasReduced || reduces;
    return picture;
}

} // namespace tembra
