#include "editor/model/ScreenshotEditRecovery.h"

#include "imaging/PictureDecoding.h"
#include "imaging/Sha256.h"

#include <QFileInfo>

namespace tembra {

ScreenshotEditRecovery::ScreenshotEditRecovery(const ScreenshotEditFolder &folder,
                                               const ScreenshotEditRecords &records,
                                               const ScreenshotEditServices &services)
    : m_folder(folder), m_records(records), m_services(services) {}

Result<void> ScreenshotEditRecovery::settle(const QString &path, const QString &hash) const {
    for (const QUuid &id : m_folder.ids()) {
        const auto pending = m_folder.pending(id);
        if (!pending)
            return failure(pending.error());
        if (!*pending)
            continue;
        const ScreenshotEditRecord &record = (*pending)->record;
        // Saved, and moved before anybody could write where to.
        const bool wasMoved = hash == record.fingerprint && !QFileInfo::exists(record.path);
        if (!wasMoved && record.path != ScreenshotEditRecord::storedPath(path))
            continue;
        if (auto settled = settle(**pending, path, hash); !settled)
            return settled;
    }
    return {};
}

Result<void> ScreenshotEditRecovery::settle(const QUuid &id, const QString &path) const {
    const auto pending = m_folder.pending(id);
    if (!pending)
        return failure(pending.error());
    const auto hash = *pending ? hashOf(path) : std::nullopt;
    return hash ? settle(**pending, path, *hash) : Result<void>();
}

void ScreenshotEditRecovery::settleFailure(const QUuid &id, const QString &path) const {
    const auto pending = m_folder.pending(id);
    if (!pending || !*pending)
        return;
    if (const auto hash = hashOf(path))
        static_cast<void>(settle(**pending, path, *hash));
    else if (clearTemporary(**pending, false))
        m_folder.removePending(id);
}

void ScreenshotEditRecovery::settleAll() const {
    for (const QUuid &id : m_folder.ids()) {
        m_folder.removeLeftovers(id);
        const auto pending = m_folder.pending(id);
        if (!pending || !*pending)
            continue;
        const QString &path = (*pending)->record.path;
        if (const auto hash = hashOf(path))
            static_cast<void>(settle(**pending, path, *hash));
        else if (!QFileInfo::exists(path))
            // It may be found elsewhere, and with it what was pending; what lies here is of no use to
            // anybody.
            static_cast<void>(clearTemporary(**pending, false));
    }
}

Result<void> ScreenshotEditRecovery::settle(const Pending &pending, const QString &path,
                                            const QString &hash) const {
    const bool wasReplaced = hash == pending.record.fingerprint;
    const bool isCleared = clearTemporary(pending, wasReplaced);
    if (wasReplaced) {
        m_services.thumbnails.forget(path);
        if (auto written = m_folder.writeRecord(m_records.finished(pending.record, path)); !written)
            return written;
    }
    if (isCleared)
        m_folder.removePending(pending.record.id);
    return {};
}

// What lies beside the screenshot is one of the two versions that are known, or, before it took the
// screenshot's place, a part of the new one. Else it is what another program wrote in that moment, which
// nobody has seen yet.
bool ScreenshotEditRecovery::clearTemporary(const Pending &pending, bool wasReplaced) const {
    const QString &name = pending.temporary;
    if (!name.startsWith(ScreenshotEditFolder::temporaryPrefix) || name.contains(u'/'))
        return true;
    const QString temporary = QFileInfo(pending.record.path).path() + u'/' + name;
    if (!QFileInfo::exists(temporary))
        return true;
    const auto reading = m_folder.record(pending.record.id);
    if (!reading)
        return false;
    const auto *previous = *reading ? std::get_if<ScreenshotEditRecord>(&**reading) : nullptr;
    const auto isKnown = [&](QByteArrayView bytes) {
        const QString hash = sha256Hex(bytes);
        return hash == pending.record.fingerprint || (previous && hash == previous->fingerprint) ||
               (!wasReplaced && !decodePicture(bytes));
    };
    return m_services.coordinator.clearTemporary(pending.record.path, temporary, isKnown).has_value();
}

std::optional<QString> ScreenshotEditRecovery::hashOf(const QString &path) const {
    const auto bytes = m_services.coordinator.read(path);
    return bytes ? std::optional(sha256Hex(*bytes)) : std::nullopt;
}

} // namespace tembra
