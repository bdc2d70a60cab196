#pragma once

#include "shelf/FileThumbnail.h"

#include <QCache>
#include <QString>

#include <memory>

namespace tembra {

class FileFactsReader;

// The thumbnails seen last, at most 128. Main thread. A file that changes gets another key; what was kept for
// the old one ages out.
class FileThumbnailCache {
public:
    static constexpr int countLimit = 128;

    // Path, size, modification date in seconds since 1970, revision and scale; what the file does not tell is
    // left empty.
    [[nodiscard]] static QString key(const FileFactsReader &files, const QString &path,
                                     const QString &revision, double scale);

    [[nodiscard]] std::shared_ptr<const FileThumbnail> find(const QString &key) const;
    void insert(const QString &key, std::shared_ptr<const FileThumbnail> thumbnail);

private:
    QCache<QString, std::shared_ptr<const FileThumbnail>> m_images{countLimit};
};

} // namespace tembra
