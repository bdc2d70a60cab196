#include "screenshots/ScreenshotImageData.h"

#include "platform/PictureDecoder.h"

#include <QBuffer>
#include <QFile>

namespace tembra {

namespace {

const QString png = QStringLiteral("public.png");

} // namespace

QString ScreenshotImageData::typeOf(const QByteArray &data) {
    if (data.startsWith("\x89PNG\r\n\x1a\n"))
        return png;
    const bool isTiff = data.startsWith(QByteArray("II*\0", 4)) || data.startsWith(QByteArray("MM\0*", 4));
    return isTiff ? QStringLiteral("public.tiff") : QString();
}

std::optional<ScreenshotImageData> ScreenshotImageData::load(const QString &path,
                                                             const PictureDecoder &decoder) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    constexpr qint64 signatureLength = 8;
    if (const QString type = typeOf(file.peek(signatureLength)); !type.isEmpty()) {
        const QByteArray data = file.readAll();
        return file.error() == QFile::NoError ? std::optional(ScreenshotImageData{data, type}) : std::nullopt;
    }
    const auto image = decoder.decode(path);
    QBuffer buffer;
    if (!image || !buffer.open(QIODevice::WriteOnly) || !image->save(&buffer, "PNG"))
        return std::nullopt;
    return ScreenshotImageData{buffer.data(), png};
}

} // namespace tembra
