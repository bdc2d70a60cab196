#pragma once

#include "platform/ThumbnailCache.h"

#include <QByteArrayList>
#include <QImage>
#include <QString>

#include <cstdint>
#include <optional>

namespace tembra {

// The user's cache of thumbnails, shared with file managers (freedesktop.org, Thumbnail Managing Standard
// 0.9.0). Any thread.
class ThumbnailCacheFolder final : public ThumbnailCache {
public:
    // The version of a file that a thumbnail is of.
    struct Source {
        QString path;
        std::int64_t modifiedAtSeconds = 0;
        std::int64_t size = 0;
        // Tell versions of the same second apart.
        std::int64_t modifiedAtNanoseconds = 0;
        std::uint64_t inode = 0;

        bool operator==(const Source &) const = default;
    };

    // `root` holds the folders "normal", "large" and so on; it is made when needed.
    explicit ThumbnailCacheFolder(QString root);
    // The user's own, from the environment.
    [[nodiscard]] static QString userRoot();

    // Of a regular file.
    [[nodiscard]] static std::optional<Source> sourceOf(const QString &path);

    // The side in pixels of the smallest size of the cache that is not smaller than what is asked for.
    [[nodiscard]] static int sideFor(int pixels);
    // A valid thumbnail of at least the given side, if there is one.
    [[nodiscard]] std::optional<QImage> find(const Source &source, int pixels) const;
    // Keeps a thumbnail whose longer side is one of `sideFor`. A thumbnail that cannot be kept is made again
    // next time, so failure is silent.
    void store(const Source &source, const QImage &thumbnail) const;

    void renew(const QString &path, const QImage &picture) const override;
    void forget(const QString &path) const override;

    // Thumbnails are not made of thumbnails.
    [[nodiscard]] bool contains(const QString &path) const;

    // As the standard names a file: percent-encoded the way GLib does, which is what everybody's names are
    // hashed from.
    [[nodiscard]] static QByteArray uri(const QString &path);

private:
    [[nodiscard]] QString file(const QByteArray &uri, const QString &folder) const;

    const QString m_root;
};

} // namespace tembra
