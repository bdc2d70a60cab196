#include "recognition/model/OCRPicture.h"

#include "imaging/PictureDecoding.h"
#include "imaging/PictureHeader.h"
#include "platform/PictureDecoder.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <optional>

namespace tembra {

namespace {

// More than a screenshot of the largest display takes.
constexpr qint64 largestFile = qint64{512} << 20;
constexpr qint64 mostPixels = 400'000'000;
constexpr qint64 chunk = qint64{8} << 20;

tl::unexpected<Error> refused(OCRPicture::ErrorCode code, const QString &message) {
    return failure({OCRPicture::errorDomain, code, message, {}});
}

tl::unexpected<Error> missing(const QString &path) {
    return refused(OCRPicture::missing,
                   QCoreApplication::translate("OCR", "%1 isn’t an image file.").arg(path));
}

tl::unexpected<Error> notAnImage() {
    return refused(
        OCRPicture::unreadable,
        QCoreApplication::translate("OCR", "The image is damaged, too large or of an unknown kind."));
}

tl::unexpected<Error> animation() {
    return refused(OCRPicture::animation, QCoreApplication::translate("OCR", "Animations can’t be read."));
}

// Of a kind that is read here; what is wrong with one of them is not given to others, which may be content
// with half of it.
bool isPngOrJpeg(QIODevice &file) {
    const QByteArray head = file.peek(4);
    return head.startsWith("\x89PNG") || head.startsWith("\xff\xd8\xff");
}

// Less than the whole when it is cancelled.
QByteArray contentOf(QIODevice &file, const Cancellation &cancellation) {
    QByteArray bytes;
    bytes.reserve(file.size());
    while (!file.atEnd() && !cancellation.isCancelled()) {
        const QByteArray more = file.read(chunk);
        if (more.isEmpty())
            break;
        bytes += more;
    }
    return bytes;
}

Result<QImage> openPngOrJpeg(QIODevice &file, const Cancellation &cancellation) {
    if (file.size() > largestFile)
        return notAnImage();
    const QByteArray bytes = contentOf(file, cancellation);
    const auto header = cancellation.isCancelled() ? std::nullopt : readPictureHeader(bytes);
    if (!header)
        return notAnImage();
    if (!header->isSingleImage)
        return animation();
    if (const auto image = decodePicture(bytes))
        return *image;
    return notAnImage();
}

Result<QImage> openOtherKind(QImageReader &reader) {
    const QSize size = reader.size();
    // Pages of documents are not images, whatever plug-ins make of them.
    if (reader.format() == "pdf" || qint64{size.width()} * size.height() > mostPixels)
        return notAnImage();
    if (reader.supportsAnimation() && reader.imageCount() > 1)
        return animation();
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull())
        return notAnImage();
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

// Nothing where the kind is unknown here.
std::optional<Result<QImage>> openKnownKind(QIODevice &file, const Cancellation &cancellation) {
    if (isPngOrJpeg(file))
        return openPngOrJpeg(file, cancellation);
    QImageReader reader(&file);
    if (!reader.canRead())
        return std::nullopt;
    return openOtherKind(reader);
}

Result<QImage> openFile(const QString &path, const PictureDecoder &decoder,
                        const Cancellation &cancellation) {
    QFile file(path);
    // Opening anything but a file may wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return missing(path);
    if (auto image = openKnownKind(file, cancellation))
        return std::move(*image);
    if (const auto image = decoder.decode(path))
        return *image;
    return notAnImage();
}

} // namespace

Result<QImage> OCRPicture::open(const OCRInput &input, const PictureDecoder &decoder,
                                const Cancellation &cancellation) {
    if (const auto *const file = std::get_if<OCRInput::File>(&input.source))
        return openFile(file->path, decoder, cancellation);
    QByteArray bytes = std::get<OCRInput::Data>(input.source).bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    if (auto image = openKnownKind(buffer, cancellation))
        return std::move(*image);
    return notAnImage();
}

} // namespace tembra
