#include "platform/PasteboardContent.h"

#include "base/FileUri.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tembra {

namespace {

const QString uriList = QStringLiteral("text/uri-list");
const QString png = QStringLiteral("image/png");
const QString tiff = QStringLiteral("image/tiff");
// As Qt calls an image that is not encoded.
const QString plainImage = QStringLiteral("application/x-qt-image");

constexpr qsizetype longestPathList = 1 << 20;

QStringList filesOfUrls(const QMimeData &pasteboard) {
    QStringList paths;
    // One a line; a line that begins with # is a comment (RFC 2483).
    const QList<QByteArray> lines = pasteboard.data(uriList).split('\n');
    for (const QByteArray &line : lines) {
        if (const auto path = pathOfFileUri(line.trimmed()))
            paths.append(*path);
    }
    return paths;
}

// Nothing when a line is no path of something that is there: then it is a text.
QStringList filesOfText(const QString &text) {
    if (text.size() > longestPathList)
        return {};
    QStringList paths;
    const auto lines = QStringView(text).split(u'\n', Qt::SkipEmptyParts);
    for (const QStringView line : lines) {
        const QString name = (line.endsWith(u'\r') ? line.chopped(1) : line).toString();
        const auto path =
            name.startsWith(u'/') ? QDir::cleanPath(name) : pathOfFileUri(name.toUtf8()).value_or(QString());
        const QFileInfo file(path);
        if (path.isEmpty() || (!file.exists() && !file.isSymLink()))
            return {};
        paths.append(path);
    }
    return paths;
}

QString otherImageFormat(const QMimeData &pasteboard) {
    const QStringList formats = pasteboard.formats();
    const auto found =
        std::ranges::find_if(formats, [](const QString &format) { return format.startsWith(u"image/"); });
    return found == formats.end() ? QString() : *found;
}

} // namespace

QStringList filesOn(const QMimeData &pasteboard) {
    if (pasteboard.hasFormat(uriList)) {
        if (QStringList paths = filesOfUrls(pasteboard); !paths.isEmpty())
            return paths;
    }
    return pasteboard.hasText() ? filesOfText(pasteboard.text()) : QStringList();
}

bool hasImage(const QMimeData &pasteboard) {
    return pasteboard.hasFormat(png) || pasteboard.hasFormat(tiff) || pasteboard.hasFormat(plainImage) ||
           !otherImageFormat(pasteboard).isEmpty();
}

PasteboardImage imageOn(const QMimeData &pasteboard) {
    for (const QString &format : {png, tiff}) {
        if (pasteboard.hasFormat(format))
            return {.bytes = pasteboard.data(format), .format = format.section(u'/', 1)};
    }
    if (const QString other = otherImageFormat(pasteboard); !other.isEmpty())
        return {.bytes = pasteboard.data(other)};
    return {.pixels = qvariant_cast<QImage>(pasteboard.imageData())};
}

} // namespace tembra
