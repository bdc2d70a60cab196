#include "shelf/FileThumbnailCache.h"

#include "platform/FileFacts.h"

#include <utility>

namespace tembra {

QString FileThumbnailCache::key(const FileFactsReader &files, const QString &path, const QString &revision,
                                double scale) {
    QString size;
    QString modifiedAt;
    if (const auto facts = files.targetFacts(path)) {
        const std::chrono::duration<double> seconds = facts->modifiedAt.time_since_epoch();
        size = QString::number(facts->size);
        modifiedAt = QString::number(seconds.count(), 'f', 9);
    }
    return QStringList{path, size, modifiedAt, revision, QString::number(scale)}.join(u'|');
}

std::shared_ptr<const FileThumbnail> FileThumbnailCache::find(const QString &key) const {
    const auto *thumbnail = m_images.object(key);
    return thumbnail ? *thumbnail : nullptr;
}

void FileThumbnailCache::insert(const QString &key, std::shared_ptr<const FileThumbnail> thumbnail) {
    m_images.insert(key, new std::shared_ptr<const FileThumbnail>(std::move(thumbnail)));
}

} // namespace tembra
