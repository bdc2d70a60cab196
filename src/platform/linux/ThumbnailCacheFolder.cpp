#include "platform/linux/ThumbnailCacheFolder.h"

#include "base/FileUri.h"
#include "platform/linux/ThumbnailDecoder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cstdio>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace tembra {

namespace {

struct CacheSize {
    QString folder;
    int side = 0;
};

const std::array cacheSizes{CacheSize{QStringLiteral("normal"), 128}, CacheSize{QStringLiteral("large"), 256},
                            CacheSize{QStringLiteral("x-large"), 512},
                            CacheSize{QStringLiteral("xx-large"), 1024}};

// In Qt's terms: zlib's quickest level, a third of the time of its usual one for a quarter more bytes.
constexpr int writingQuality = 80;

const QString uriKey = QStringLiteral("Thumb::URI");
const QString modifiedAtKey = QStringLiteral("Thumb::MTime");
const QString sizeKey = QStringLiteral("Thumb::Size");

bool isOf(const QImage &image, const ThumbnailCacheFolder::Source &source) {
    const QString size = image.text(sizeKey);
    return image.text(modifiedAtKey) == QString::number(source.modifiedAtSeconds) &&
           image.text(uriKey) == QString::fromLatin1(ThumbnailCacheFolder::uri(source.path)) &&
           (size.isEmpty() || size == QString::number(source.size));
}

bool makePrivateFolder(const QString &path) {
    if (QDir(path).exists())
        return true;
    return QDir().mkpath(path) &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// The names by which programs know a file: GLib's way to write it, and Qt's, which differs in a few
// characters; and the same of where links on the way lead.
QByteArrayList namesOf(const QString &path) {
    QByteArrayList names{ThumbnailCacheFolder::uri(path)};
    const QByteArray other = QUrl::fromLocalFile(path).toEncoded();
    if (path.isValidUtf16() && other != names.first())
        names.append(other);
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (!canonical.isEmpty() && canonical != path)
        names += namesOf(canonical);
    return names;
}

// Nothing but pixels: texts in a picture are its own.
QImage pixelsOf(const QImage &picture) {
    const QImage image = forScreens(picture);
    return QImage(image.constBits(), image.width(), image.height(), image.bytesPerLine(), image.format())
        .copy();
}

void write(const QString &target, const QByteArray &uri, const ThumbnailCacheFolder::Source &source,
           const QImage &thumbnail) {
    QImage image = pixelsOf(thumbnail);
    image.setText(uriKey, QString::fromLatin1(uri));
    image.setText(modifiedAtKey, QString::number(source.modifiedAtSeconds));
    image.setText(sizeKey, QString::number(source.size));
    image.setText(QStringLiteral("Software"), QStringLiteral("Tembra"));
    // Made readable for the user alone and renamed into place, so that nobody reads half of it.
    QTemporaryFile file(target.left(target.lastIndexOf(u'/')) + QStringLiteral("/tembra-XXXXXX.png"));
    if (!file.open() || !image.save(&file, "PNG", writingQuality) || !file.flush())
        return;
    const QByteArray from = QFile::encodeName(file.fileName());
    if (std::rename(from.constData(), QFile::encodeName(target).constData()) == 0)
        file.setAutoRemove(false);
}

} // namespace

ThumbnailCacheFolder::ThumbnailCacheFolder(QString root) : m_root(std::move(root)) {}

QString ThumbnailCacheFolder::userRoot() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/thumbnails");
}

std::optional<ThumbnailCacheFolder::Source> ThumbnailCacheFolder::sourceOf(const QString &path) {
    struct stat status {};
    if (::stat(pathBytes(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return Source{path, status.st_mtim.tv_sec, status.st_size, status.st_mtim.tv_nsec, status.st_ino};
}

int ThumbnailCacheFolder::sideFor(int pixels) {
    const auto size = std::ranges::find_if(cacheSizes, [=](const CacheSize &s) { return s.side >= pixels; });
    return size == cacheSizes.end() ? cacheSizes.back().side : size->side;
}

QByteArray ThumbnailCacheFolder::uri(const QString &path) {
    return fileUri(path);
}

QString ThumbnailCacheFolder::file(const QByteArray &uri, const QString &folder) const {
    const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
    return m_root + u'/' + folder + u'/' + QLatin1StringView(name) + QStringLiteral(".png");
}

std::optional<QImage> ThumbnailCacheFolder::find(const Source &source, int pixels) const {
    for (const auto &[folder, side] : cacheSizes) {
        if (side < sideFor(pixels))
            continue;
        const QString thumbnail = file(uri(source.path), folder);
        // A reader looks for other names when it finds none.
        if (!QFile::exists(thumbnail))
            continue;
        QImage image = QImageReader(thumbnail, "png").read();
        if (!image.isNull() && isOf(image, source))
            return image;
    }
    return std::nullopt;
}

void ThumbnailCacheFolder::store(const Source &source, const QImage &thumbnail) const {
    const int longerSide = std::max(thumbnail.width(), thumbnail.height());
    const auto size = std::ranges::find(cacheSizes, longerSide, &CacheSize::side);
    if (size == cacheSizes.end() || contains(source.path))
        return;
    const QString target = file(uri(source.path), size->folder);
    if (makePrivateFolder(m_root) && makePrivateFolder(target.left(target.lastIndexOf(u'/'))))
        write(target, uri(source.path), source, thumbnail);
}

void ThumbnailCacheFolder::renew(const QString &path, const QImage &picture) const {
    struct Kept {
        QByteArray uri;
        QString file;
        int side = 0;
    };
    std::vector<Kept> kept;
    for (const auto &[folder, side] : cacheSizes) {
        for (const QByteArray &uri : namesOf(path)) {
            const QString thumbnail = file(uri, folder);
            if (QFile::exists(thumbnail))
                kept.push_back({uri, thumbnail, side});
        }
    }
    forget(path);
    const auto source = sourceOf(path);
    if (!source || picture.isNull())
        return;
    // Each is made from the next larger one.
    std::ranges::reverse(kept);
    QImage thumbnail = picture;
    for (const auto &[uri, file, side] : kept) {
        thumbnail = reduced(thumbnail, side).image;
        write(file, uri, *source, thumbnail);
    }
}

void ThumbnailCacheFolder::forget(const QString &path) const {
    constexpr auto subfolders = QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot;
    QStringList folders = QDir(m_root).entryList(subfolders);
    // What programs could make no thumbnail of they note down here, each for itself.
    const QString failures = QStringLiteral("fail/");
    for (const QString &program : QDir(m_root + u'/' + failures).entryList(subfolders))
        folders.append(failures + program);
    for (const QByteArray &uri : namesOf(path)) {
        for (const QString &folder : std::as_const(folders))
            QFile::remove(file(uri, folder));
    }
}

bool ThumbnailCacheFolder::contains(const QString &path) const {
    return path.startsWith(m_root + u'/');
}

} // namespace tembra
