#pragma once

#include "base/Result.h"

#include <QImage>
#include <QString>

#include <optional>

namespace tembra {

// The domain of every failure to make a thumbnail.
inline const QString screenshotThumbnailErrorDomain = QStringLiteral("Tembra.ScreenshotThumbnail");

struct DecodedPicture {
    // Upright, no longer than the side that was asked for.
    QImage image;
    // The picture was larger than that.
    bool wasReduced = false;
};

// Decodes a picture at a reduced size. Any thread. Nothing when the file is no picture that can be decoded
// here; an error when it is one but is damaged or too large.
[[nodiscard]] Result<std::optional<DecodedPicture>> decodeReduced(const QString &path, int side);

// The same through libheif, for files of its kind.
[[nodiscard]] Result<std::optional<DecodedPicture>> decodeReducedHeif(const QString &path, int side);

// In eight bits a channel and the colours that screens and other readers of thumbnails expect.
[[nodiscard]] QImage forScreens(QImage image);

// Never enlarges.
[[nodiscard]] DecodedPicture reduced(const QImage &image, int side);

[[nodiscard]] Error unreadablePicture();

} // namespace tembra
