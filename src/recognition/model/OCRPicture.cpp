#include "recognition/model/OCRPicture.h"

#include "imaging/PictureDecoding.h"
#include "imaging/PictureHeader.h"
#include "platform/PictureDecoder.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace tembra {

namespace {

// More than a screenshot of the largest display takes.
constexpr qint64 largestFile = qint64{512} << 20;
constexpr qint64 mostPixels = 400'000'000;

tl::unexpected<Error> refused(OCRPicture::ErrorCode code, const QString &message) {
    return failure({OCRPicture::errorDomain, code, message, {}});
}

tl::unexpected<Error> missing(const QString &path) {
    return refused(OCRPicture::missing,
                   QCoreApplication::translate("OCR", "%1 isn’t an image file.").arg(path));
}

tl::unexpected<Error> unreadable() {
    return refused(
        OCRPicture::unreadable,
        QCoreApplication::translate("OCR", "The image is damaged, too large or of an unknown kind."));
}

tl::unexpected<Error> animation() {
    return refused(OCRPicture::animation, QCoreApplication::translate("OCR", "Animations can’t be read."));
}

// Pages of documents are not images, whatever plug-ins make of them.
bool isDocument(const QByteArray &format) {
    return format == "pdf";
}

// Of the kinds that Qt knows.
Result<QImage> openOtherKind(QByteArray bytes) {
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!reader.canRead() || isDocument(reader.format()) || qint64{size.width()} * size.height() > mostPixels)
        return unreadable();
    if (reader.supportsAnimation() && reader.imageCount() > 1)
        return animation();
    const QImage image = reader.read();
    if (image.isNull())
        return unreadable();
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

Result<QImage> openBytes(const QByteArray &bytes) {
    const auto header = readPictureHeader(bytes);
    if (!header)
        return openOtherKind(bytes);
    if (!header->isSingleImage)
        return animation();
    if (const auto image = decodePicture(bytes))
        return *image;
    return unreadable();
}

Result<QImage> openFile(const QString &path, const PictureDecoder &decoder) {
    QFile file(path);
    // Opening anything but a file may wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return missing(path);
    if (file.size() > largestFile)
        return unreadable();
    auto image = openBytes(file.readAll());
    if (image || image.error().code != OCRPicture::unreadable)
        return image;
    // Kinds that only the platform knows.
    if (const auto other = decoder.decode(path))
        return *other;
    return image;
}

} // namespace

Result<QImage> OCRPicture::open(const OCRInput &input, const PictureDecoder &decoder) {
    if (const auto *const file = std::get_if<OCRInput::File>(&input.source))
        return openFile(file->path, decoder);
    return openBytes(std::get<OCRInput::Data>(input.source).bytes);
}

} // namespace tembra
