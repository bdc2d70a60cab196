#include "editor/model/ScreenshotEditFolder.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace tembra {

namespace {

const QString recordName = QStringLiteral("record.json");
const QString pendingName = QStringLiteral("pending.json");
const QString originalName = QStringLiteral("original");

QString folderName(const QUuid &id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

} // namespace

ScreenshotEditFolder::ScreenshotEditFolder(QString root, const FileCoordinator &files)
    : m_root(std::move(root)), m_files(files) {}

QString ScreenshotEditFolder::file(const QUuid &id, const QString &name) const {
    return m_root + u'/' + folderName(id) + u'/' + name;
}

std::vector<QUuid> ScreenshotEditFolder::ids() const {
    std::vector<QUuid> ids;
    const QStringList names = QDir(m_root).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QUuid id = QUuid::fromString(name);
        if (!id.isNull() && folderName(id) == name)
            ids.push_back(id);
    }
    return ids;
}

std::optional<ScreenshotEditRecord::Reading> ScreenshotEditFolder::record(const QUuid &id) const {
    const auto bytes = m_files.read(file(id, recordName));
    if (!bytes)
        return std::nullopt;
    auto reading = ScreenshotEditRecord::decode(*bytes);
    // A folder that was copied by hand is nobody's.
    if (const auto *record = reading ? std::get_if<ScreenshotEditRecord>(&*reading) : nullptr;
        record && record->id != id)
        return std::nullopt;
    return reading;
}

std::optional<ScreenshotEditFolder::Pending> ScreenshotEditFolder::pending(const QUuid &id) const {
    const auto bytes = m_files.read(file(id, pendingName));
    if (!bytes)
        return std::nullopt;
    const auto reading = ScreenshotEditRecord::decode(*bytes);
    const auto *record = reading ? std::get_if<ScreenshotEditRecord>(&*reading) : nullptr;
    if (!record || record->id != id)
        return std::nullopt;
    return Pending{*record, ScreenshotEditRecord::decodeTemporary(*bytes)};
}

bool ScreenshotEditFolder::hasSavedOriginal(const QUuid &id) const {
    const auto reading = record(id);
    const auto *known = reading ? std::get_if<ScreenshotEditRecord>(&*reading) : nullptr;
    return known && known->wasSaved() && QFileInfo::exists(file(id, originalName));
}

Result<QByteArray> ScreenshotEditFolder::original(const QUuid &id) const {
    return m_files.read(file(id, originalName));
}

Result<void> ScreenshotEditFolder::writeRecord(const ScreenshotEditRecord &record) const {
    const QString path = file(record.id, recordName);
    return m_files.makePrivateFolder(QFileInfo(path).path())
        .and_then([&] { return m_files.writeAtomically(path, record.encode()); })
        .map([&] { removePending(record.id); });
}

Result<void> ScreenshotEditFolder::writePending(const ScreenshotEditRecord &record,
                                                const QString &temporary) const {
    return m_files.writeAtomically(file(record.id, pendingName), record.encode(temporary));
}

// What cannot be removed is settled by the next load, which finds that the record is written.
void ScreenshotEditFolder::removePending(const QUuid &id) const {
    static_cast<void>(m_files.remove(file(id, pendingName)));
}

Result<void> ScreenshotEditFolder::keepOriginal(const QUuid &id, const QByteArray &bytes) const {
    if (hasSavedOriginal(id))
        return {};
    const QString path = file(id, originalName);
    return m_files.makePrivateFolder(QFileInfo(path).path()).and_then([&] {
        return m_files.writeAtomically(path, bytes);
    });
}

} // namespace tembra
