#include "editor/model/ScreenshotEditFolder.h"

#include "editor/model/ScreenshotEditError.h"
#include "editor/model/UuidText.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <utility>

namespace tembra {

namespace {

const QString recordName = QStringLiteral("record.json");
const QString pendingName = QStringLiteral("pending.json");
const QString originalName = QStringLiteral("original");

// The file is not there, or nobody here may ever read it: what is said of others stands.
bool isAbsence(const Error &error) {
    return error.domain != posixErrorDomain || error.code == ENOENT || error.code == EACCES ||
           error.code == EPERM || error.code == ENOTDIR;
}

// Nothing for a folder that was copied by hand, which is nobody's.
std::optional<ScreenshotEditRecord> ownRecord(const std::optional<ScreenshotEditRecord::Reading> &reading,
                                              const QUuid &id) {
    const auto *record = reading ? std::get_if<ScreenshotEditRecord>(&*reading) : nullptr;
    return record && record->id == id ? std::optional(*record) : std::nullopt;
}

} // namespace

ScreenshotEditFolder::ScreenshotEditFolder(QString root, const FileCoordinator &files)
    : m_root(std::move(root)), m_files(files) {}

QString ScreenshotEditFolder::folder(const QUuid &id) const {
    return m_root + u'/' + uuidText(id);
}

std::vector<QUuid> ScreenshotEditFolder::ids() const {
    std::vector<QUuid> ids;
    const QStringList names = QDir(m_root).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QUuid id = QUuid::fromString(name);
        if (!id.isNull() && uuidText(id) == name)
            ids.push_back(id);
    }
    return ids;
}

Result<std::optional<QByteArray>> ScreenshotEditFolder::content(const QUuid &id, const QString &name) const {
    auto bytes = m_files.read(folder(id) + u'/' + name);
    if (bytes)
        return std::optional(*std::move(bytes));
    if (isAbsence(bytes.error()))
        return std::nullopt;
    return failure(bytes.error());
}

Result<std::optional<ScreenshotEditRecord::Reading>> ScreenshotEditFolder::record(const QUuid &id) const {
    return content(id, recordName).map([&](const std::optional<QByteArray> &bytes) {
        auto reading = bytes ? ScreenshotEditRecord::decode(*bytes) : std::nullopt;
        const bool isForeign = reading && std::holds_alternative<ScreenshotEditRecord::Foreign>(*reading);
        return isForeign || ownRecord(reading, id) ? std::move(reading) : std::nullopt;
    });
}

Result<std::optional<ScreenshotEditFolder::Pending>> ScreenshotEditFolder::pending(const QUuid &id) const {
    return content(id, pendingName)
        .map([&](const std::optional<QByteArray> &bytes) -> std::optional<Pending> {
            const auto record = bytes ? ownRecord(ScreenshotEditRecord::decode(*bytes), id) : std::nullopt;
            if (!record)
                return std::nullopt;
            return Pending{*record, ScreenshotEditRecord::decodeTemporary(*bytes)};
        });
}

Result<QByteArray> ScreenshotEditFolder::original(const QUuid &id) const {
    return m_files.read(folder(id) + u'/' + originalName);
}

Result<void> ScreenshotEditFolder::makeFolder(const QUuid &id) const {
    return m_files.makePrivateFolder(m_root).and_then([&] { return m_files.makePrivateFolder(folder(id)); });
}

Result<void> ScreenshotEditFolder::writeRecord(const ScreenshotEditRecord &record) const {
    return makeFolder(record.id).and_then(
        [&] { return m_files.writeAtomically(folder(record.id) + u'/' + recordName, record.encode()); });
}

Result<void> ScreenshotEditFolder::writePending(const ScreenshotEditRecord &record,
                                                const QString &temporary) const {
    const QByteArray bytes = record.encode(temporary);
    const auto reading = ScreenshotEditRecord::decode(bytes);
    const auto known = ownRecord(reading, record.id);
    if (!known || known->annotations != record.annotations || known->cropRect != record.cropRect)
        return editFailure(ScreenshotEditError::unreadableAnnotation);
    return m_files.writeAtomically(folder(record.id) + u'/' + pendingName, bytes);
}

// What cannot be removed is settled by the next load, which finds that the record is written.
void ScreenshotEditFolder::removePending(const QUuid &id) const {
    static_cast<void>(m_files.remove(folder(id) + u'/' + pendingName));
}

Result<void> ScreenshotEditFolder::keepOriginal(const QUuid &id, const QByteArray &bytes) const {
    const QString path = folder(id) + u'/' + originalName;
    const auto reading = record(id);
    if (!reading)
        return failure(reading.error());
    const auto known = ownRecord(*reading, id);
    if (known && known->wasSaved() && QFileInfo::exists(path))
        return {};
    return makeFolder(id).and_then([&] { return m_files.writeAtomically(path, bytes); });
}

void ScreenshotEditFolder::removeLeftovers(const QUuid &id) const {
    const QDir files(folder(id));
    const QStringList names =
        files.entryList({FileCoordinator::temporaryPrefix + u'*'}, QDir::Files | QDir::Hidden);
    for (const QString &name : names)
        static_cast<void>(m_files.remove(files.filePath(name)));
}

} // namespace tembra
