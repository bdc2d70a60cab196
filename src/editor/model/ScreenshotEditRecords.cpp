#include "editor/model/ScreenshotEditRecords.h"

#include "editor/model/ScreenshotEditError.h"
#include "imaging/PictureDecoding.h"
#include "imaging/Sha256.h"
#include "screenshots/Shot.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace tembra {

ScreenshotEditRecords::ScreenshotEditRecords(const ScreenshotEditFolder &folder,
                                             const ScreenshotEditServices &services)
    : m_folder(folder), m_services(services) {}

Result<ScreenshotEditRecords::Match> ScreenshotEditRecords::match(const QString &path, const FileFacts &facts,
                                                                  const QString &hash) const {
    bool isForeign = false;
    bool wasSaved = false;
    std::optional<Record> unsaved;
    for (const QUuid &id : m_folder.ids()) {
        const auto reading = m_folder.record(id);
        if (!reading)
            continue;
        const auto *foreign = std::get_if<Record::Foreign>(&*reading);
        const auto *record = std::get_if<Record>(&*reading);
        if (!belongs(record ? record->path : foreign->path, record ? record->bookmark : foreign->bookmark,
                     path, facts))
            continue;
        isForeign = isForeign || foreign;
        if (!record)
            continue;
        if (record->fingerprint != hash) {
            wasSaved = wasSaved || record->wasSaved();
            unsaved = record->wasSaved() ? unsaved : *record;
            continue;
        }
        if (!record->wasSaved())
            return Match{.record = *record};
        auto original = m_folder.original(id);
        if (!original)
            return editFailure(ScreenshotEditError::unreadableOriginal);
        return Match{.record = *record, .original = *std::move(original)};
    }
    if (isForeign)
        return editFailure(ScreenshotEditError::unreadableAnnotation);
    if (wasSaved)
        return editFailure(ScreenshotEditError::changedBeforeOpening);
    // The editor opened the file but never wrote it: what somebody else wrote since is the original now.
    if (!unsaved)
        return Match{};
    unsaved->fingerprint = hash;
    if (const auto written = m_folder.writeRecord(*unsaved); !written)
        return failure(written.error());
    return Match{.record = *unsaved};
}

// The bookmark decides where it leads anywhere, else the path.
bool ScreenshotEditRecords::belongs(const QString &recordPath, const std::optional<QByteArray> &bookmark,
                                    const QString &path, const FileFacts &facts) const {
    const QString standardized = QDir::cleanPath(path);
    const auto resource = bookmark ? m_services.bookmarks.resource(*bookmark) : std::nullopt;
    if (resource && resource == facts.resource)
        return true;
    if (QDir::cleanPath(recordPath) != standardized)
        return false;
    const auto resolved = bookmark ? m_services.bookmarks.resolve(*bookmark)
                                   : Result<Bookmarks::Resolved>(tl::unexpect, Error{});
    return !resolved || QDir::cleanPath(resolved->path) == standardized;
}

ScreenshotEditRecord ScreenshotEditRecords::finished(Record record, const QString &path) const {
    record.path = path;
    const auto bookmark = m_services.bookmarks.create(path);
    record.bookmark = bookmark ? std::optional(*bookmark) : std::nullopt;
    if (const auto facts = m_services.files.facts(path)) {
        record.fileSize = static_cast<std::int64_t>(facts->size);
        record.modifiedAt = facts->modifiedAt;
    }
    return record;
}

void ScreenshotEditRecords::settlePending(const QString &path, const QString &hash) const {
    for (const QUuid &id : m_folder.ids()) {
        const auto pending = m_folder.pending(id);
        if (!pending)
            continue;
        // Saved, and moved before anybody could write where to.
        const bool wasMoved = hash == pending->record.fingerprint && !QFileInfo::exists(pending->record.path);
        if (wasMoved || pending->record.path == path)
            settle(*pending, path, hash);
    }
}

void ScreenshotEditRecords::settleEveryPending() const {
    for (const QUuid &id : m_folder.ids()) {
        const auto pending = m_folder.pending(id);
        const auto hash = pending ? hashOf(pending->record.path) : std::nullopt;
        if (hash)
            settle(*pending, pending->record.path, *hash);
    }
}

void ScreenshotEditRecords::settle(const ScreenshotEditFolder::Pending &pending, const QString &path,
                                   const QString &hash) const {
    clearTemporary(pending);
    if (hash == pending.record.fingerprint) {
        // The screenshot was replaced, only the record was not written any more.
        m_services.thumbnails.forget(path);
        static_cast<void>(m_folder.writeRecord(finished(pending.record, path)));
        return;
    }
    m_folder.removePending(pending.record.id);
}

// What lies beside the screenshot is one of the two versions that are known, or a part of the new one; or it
// is what another program wrote in that moment, which nobody has seen yet.
void ScreenshotEditRecords::clearTemporary(const ScreenshotEditFolder::Pending &pending) const {
    const QFileInfo temporary(pending.temporary);
    if (temporary.path() != QFileInfo(pending.record.path).path() ||
        !temporary.fileName().startsWith(ScreenshotEditFolder::temporaryPrefix))
        return;
    const auto reading = m_folder.record(pending.record.id);
    const auto *previous = reading ? std::get_if<Record>(&*reading) : nullptr;
    const auto isKnown = [&](QByteArrayView bytes) {
        const QString hash = sha256Hex(bytes);
        return hash == pending.record.fingerprint || (previous && hash == previous->fingerprint) ||
               !decodePicture(bytes);
    };
    static_cast<void>(m_services.coordinator.clearTemporary(pending.record.path, pending.temporary, isKnown));
}

std::optional<QString> ScreenshotEditRecords::hashOf(const QString &path) const {
    const auto bytes = m_services.coordinator.read(path);
    return bytes ? std::optional(sha256Hex(*bytes)) : std::nullopt;
}

QString ScreenshotEditRecords::fileOf(const Record &record) const {
    const auto resolved = record.bookmark ? m_services.bookmarks.resolve(*record.bookmark)
                                          : Result<Bookmarks::Resolved>(tl::unexpect, Error{});
    return resolved ? resolved->path : record.path;
}

std::optional<QString> ScreenshotEditRecords::revision(const Record &record) {
    const bool hasEdits = !record.annotations.empty() || record.cropRect;
    if (!hasEdits || !record.fileSize || !record.modifiedAt)
        return std::nullopt;
    return Shot::revision(static_cast<std::uint64_t>(*record.fileSize), *record.modifiedAt);
}

QHash<ScreenshotFileIdentity, QString> ScreenshotEditRecords::revisions() const {
    QHash<ScreenshotFileIdentity, QString> revisions;
    for (const QUuid &id : m_folder.ids()) {
        const auto reading = m_folder.record(id);
        const auto *record = reading ? std::get_if<Record>(&*reading) : nullptr;
        const auto text = record ? revision(*record) : std::nullopt;
        if (!text)
            continue;
        const QString path = fileOf(*record);
        if (const auto facts = m_services.files.facts(path))
            revisions.insert(ScreenshotFileIdentity::of(path, *facts), *text);
    }
    return revisions;
}

} // namespace tembra
