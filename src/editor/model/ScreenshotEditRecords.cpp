#include "editor/model/ScreenshotEditRecords.h"

#include "editor/model/ScreenshotEditError.h"
#include "screenshots/Shot.h"

#include <QDir>

#include <utility>

namespace tembra {

ScreenshotEditRecords::ScreenshotEditRecords(const ScreenshotEditFolder &folder,
                                             const ScreenshotEditServices &services)
    : m_folder(folder), m_services(services) {}

Result<ScreenshotEditRecords::Match> ScreenshotEditRecords::match(const QString &path, const FileFacts &facts,
                                                                  const QString &hash) const {
    bool isForeign = false;
    bool wasSaved = false;
    // Of records that were only opened: one of this content, and one of another.
    std::optional<Record> opened;
    std::optional<Record> outdated;
    for (const QUuid &id : m_folder.ids()) {
        const auto reading = m_folder.record(id);
        if (!reading)
            return failure(reading.error());
        if (!*reading || !belongs(**reading, path, facts))
            continue;
        const auto *record = std::get_if<Record>(&**reading);
        if (!record) {
            isForeign = true;
        } else if (!record->wasSaved()) {
            (record->fingerprint == hash ? opened : outdated) = *record;
        } else if (record->fingerprint == hash) {
            auto original = m_folder.original(id);
            if (!original)
                return editFailure(ScreenshotEditError::unreadableOriginal);
            return Match{.record = *record, .original = *std::move(original)};
        } else {
            wasSaved = true;
        }
    }
    if (opened)
        return Match{.record = opened};
    if (isForeign)
        return editFailure(ScreenshotEditError::unreadableAnnotation);
    if (wasSaved)
        return editFailure(ScreenshotEditError::changedBeforeOpening);
    if (!outdated)
        return Match{};
    // The editor opened the file but never wrote it: what somebody else wrote since is the original now.
    outdated->fingerprint = hash;
    return m_folder.writeRecord(*outdated).map([&] { return Match{.record = outdated}; });
}

// The bookmark decides where it leads anywhere, else the path.
bool ScreenshotEditRecords::belongs(const Record::Reading &reading, const QString &path,
                                    const FileFacts &facts) const {
    const auto [recordPath, bookmark] = std::visit(
        [](const auto &known) {
            return Record::Foreign{known.path, known.bookmark};
        },
        reading);
    const auto resource = bookmark ? m_services.bookmarks.resource(*bookmark) : std::nullopt;
    if (resource && resource == facts.resource)
        return true;
    const QString standardized = QDir::cleanPath(path);
    if (QDir::cleanPath(recordPath) != Record::storedPath(standardized))
        return false;
    const auto resolved = bookmark ? m_services.bookmarks.resolve(*bookmark)
                                   : Result<Bookmarks::Resolved>(tl::unexpect, Error{});
    return !resolved || QDir::cleanPath(resolved->path) == standardized;
}

ScreenshotEditRecord ScreenshotEditRecords::finished(Record record, const QString &path) const {
    record.path = path;
    const auto bookmark = m_services.bookmarks.create(path);
    record.bookmark = bookmark ? std::optional(*bookmark) : std::nullopt;
    const auto facts = m_services.files.facts(path);
    record.modifiedAt = facts ? std::optional(facts->modifiedAt) : std::nullopt;
    return record;
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
        const auto *record = reading && *reading ? std::get_if<Record>(&**reading) : nullptr;
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
