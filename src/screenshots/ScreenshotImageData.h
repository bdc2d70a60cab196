#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tembra {

class PictureDecoder;

// The image of a screenshot as the clipboard takes it: the file's own bytes when they are PNG or TIFF, else
// PNG made of them.
struct ScreenshotImageData {
    QByteArray data;
    // "public.png" or "public.tiff".
    QString type;

    // Any thread. Nothing when the file cannot be read or is no picture.
    [[nodiscard]] static std::optional<ScreenshotImageData> load(const QString &path,
                                                                 const PictureDecoder &decoder);
    // Which of the two types the bytes are; empty when neither.
    [[nodiscard]] static QString typeOf(const QByteArray &data);

    bool operator==(const ScreenshotImageData &) const = default;
};

} // namespace tembra
