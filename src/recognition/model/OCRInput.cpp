#include "recognition/model/OCRInput.h"

#include "platform/PasteboardContent.h"

#include <QBuffer>

namespace tembra {

namespace {

QByteArray encoded(const QImage &pixels) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (pixels.isNull() || !pixels.save(&buffer, "png"))
        return {};
    return bytes;
}

} // namespace

std::optional<OCRInput> OCRInput::read(const QMimeData &pasteboard) {
    const QStringList files = filesOn(pasteboard);
    const bool isImage = hasImage(pasteboard);
    // A text beside an image may be a path by chance.
    if (!files.isEmpty() && (pasteboard.hasUrls() || !isImage))
        return OCRInput{File{files.first()}};
    if (!isImage)
        return std::nullopt;
    const PasteboardImage image = imageOn(pasteboard);
    QByteArray bytes = image.bytes.isEmpty() ? encoded(image.pixels) : image.bytes;
    if (bytes.isEmpty())
        return std::nullopt;
    return OCRInput{Data{std::move(bytes)}};
}

bool OCRInput::canRead(const QMimeData &pasteboard) {
    return !filesOn(pasteboard).isEmpty() || hasImage(pasteboard);
}

} // namespace tembra
