#pragma once

#include <QByteArray>
#include <QImage>
#include <QMimeData>
#include <QString>
#include <QStringList>

#include <optional>

namespace tembra {

// An image on a pasteboard that is no file yet.
struct PasteboardImage {
    QByteArray bytes;
    // "png" or "tiff"; empty for another format, which is to be converted.
    QString format;
    // Where there are no bytes.
    QImage pixels;
};

// The local files that a pasteboard names, as URLs or as a plain list of absolute paths, one a line, that are
// all there: what a terminal or an editor gives. Absolute clean paths.
[[nodiscard]] QStringList filesOn(const QMimeData &pasteboard);
// Whether there is an image, without fetching it.
[[nodiscard]] bool hasImage(const QMimeData &pasteboard);
// PNG is preferred, then TIFF. Empty bytes when the pasteboard's owner does not give what it promised.
[[nodiscard]] PasteboardImage imageOn(const QMimeData &pasteboard);

} // namespace tembra
