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
    // A text beside an image may be a path by chance.
    const bool prefersFile = pasteboard.hasUrls() || !hasImage(pasteboard);
    if (!files.isEmpty() && prefersFile)
        return OCRInput{File{files.first()}};
    if (!hasImage(pasteboard))
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
