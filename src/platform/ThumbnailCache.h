#pragma once

#include <QImage>
#include <QString>

namespace tembra {

// The small pictures that other programs keep of the user's files and show instead of them. Any thread.
class ThumbnailCache {
public:
    virtual ~ThumbnailCache() = default;
    // The file shows `picture` now, whatever its dates say: every picture that is kept of it becomes one of
    // that, or goes.
    virtual void renew(const QString &path, const QImage &picture) const = 0;
    // Everything that is kept of it goes.
    virtual void forget(const QString &path) const = 0;
};

} // namespace tembra
