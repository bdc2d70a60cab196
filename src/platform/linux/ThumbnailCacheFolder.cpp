#include "platform/linux/ThumbnailCacheFolder.h"

#include "base/FileUri.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace tembra {

namespace {

struct CacheSize {
    const char *folder;
    int side;
};

constexpr std::array cacheSizes{CacheSize{"normal", 128}, CacheSize{"large", 256}, CacheSize{"x-large", 512},
                                CacheSize{"xx-large", 1024}};

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

} // namespace

ThumbnailCacheFolder::ThumbnailCacheFolder(QString root) : m_root(std::move(root)) {}

int ThumbnailCacheFolder::sideFor(int pixels) {
    const auto size = std::ranges::find_if(cacheSizes, [=](const CacheSize &s) { return s.side >= pixels; });
    return size == cacheSizes.end() ? cacheSizes.back().side : size->side;
}

QByteArray ThumbnailCacheFolder::uri(const QString &path) {
    return fileUri(path);
}

QString ThumbnailCacheFolder::file(const QString &path, const char *folder) const {
    const QByteArray name = QCryptographicHash::hash(uri(path), QCryptographicHash::Md5).toHex();
    return m_root + u'/' + QLatin1StringView(folder) + u'/' + QLatin1StringView(name) +
           QStringLiteral(".png");
}

std::optional<QImage> ThumbnailCacheFolder::find(const Source &source, int pixels) const {
    for (const auto &[folder, side] : cacheSizes) {
        if (side < sideFor(pixels))
            continue;
        const QString thumbnail = file(source.path, folder);
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
    const QString target = file(source.path, size->folder);
    const QString folder = target.left(target.lastIndexOf(u'/'));
    if (!makePrivateFolder(m_root) || !makePrivateFolder(folder))
        return;
    QImage image = thumbnail;
    image.setText(uriKey, QString::fromLatin1(uri(source.path)));
    image.setText(modifiedAtKey, QString::number(source.modifiedAtSeconds));
    image.setText(sizeKey, QString::number(source.size));
    image.setText(QStringLiteral("Software"), QStringLiteral("Tembra"));
    // Made readable for the user alone and renamed into place, so that nobody reads half of it.
    QTemporaryFile file(folder + QStringLiteral("/tembra-XXXXXX.png"));
    if (!file.open() || !image.save(&file, "PNG", writingQuality) || !file.flush())
        return;
    const QByteArray from = QFile::encodeName(file.fileName());
    if (std::rename(from.constData(), QFile::encodeName(target).constData()) == 0)
        file.setAutoRemove(false);
}

bool ThumbnailCacheFolder::contains(const QString &path) const {
    return path.startsWith(m_root + u'/');
}

} // namespace tembra
