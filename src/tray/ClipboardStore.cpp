#include "tray/ClipboardStore.h"

#include "base/MainThread.h"
#include "base/RestoredOrder.h"

#include <QDir>

#include <algorithm>
#include <iterator>

namespace tembra {

ClipboardStore::ClipboardStore(ClipboardStoreServices services)
    : m_services(std::move(services)),
      m_inspector(m_services.files, m_services.references, m_services.volumes, m_services.folders),
      m_scratch({m_services.folders.temporary, m_services.folders.cache}),
      m_fileWatches(m_services.folderEvents, [this] { scheduleReconciliation(); }),
      m_pass(m_services.scheduler, m_services.uptime) {
    inspectEntry = [this](const ClipboardEntry &entry) { return m_inspector.state(entry); };
    m_services.queue.post([scratch = m_scratch] { scratch.empty(); });
}

ClipboardStore::~ClipboardStore() = default;

QList<QUuid> ClipboardStore::order() const {
    QList<QUuid> ids;
    for (const ClipboardEntry &entry : m_entries)
        ids.append(entry.id);
    return ids;
}

std::vector<ClipboardEntry> ClipboardStore::references(const QString &path,
                                                       const ScreenshotFileIdentity &identity) const {
    std::vector<ClipboardEntry> found;
    const QString clean = QDir::cleanPath(path);
    std::ranges::copy_if(m_entries, std::back_inserter(found), [&](const ClipboardEntry &entry) {
        return entry.identity == identity || entry.lastKnownPath == clean;
    });
    return found;
}

void ClipboardStore::setStatus(std::optional<QString> status) {
    requireMainThread();
    if (m_status == status)
        return;
    m_status = std::move(status);
    changed();
}

void ClipboardStore::select(const QSet<QUuid> &ids) {
    requireMainThread();
    if (m_selectedIDs == ids)
        return;
    m_selectedIDs = ids;
    changed();
}

void ClipboardStore::removeSelected() {
    if (m_selectedIDs.isEmpty())
        return;
    const ClipboardRemoval taken = removal(m_selectedIDs, false);
    removeReferences(m_selectedIDs);
    onTakenOut(taken);
}

void ClipboardStore::clear() {
    requireMainThread();
    // What is still being written was to go as well.
    ++m_importGeneration;
    m_status.reset();
    const QList<QUuid> all = order();
    const QSet<QUuid> ids(all.cbegin(), all.cend());
    const ClipboardRemoval taken = removal(ids, true);
    removeEntries(ids);
    changed();
    if (!all.isEmpty())
        onTakenOut(taken);
}

void ClipboardStore::putBack(const ClipboardRemoval &removal) {
    restoreReferences(removal.entries, removal.order, removal.selection, m_importGeneration);
    // Nobody followed the files meanwhile.
    scheduleReconciliation();
}

ClipboardRemoval ClipboardStore::takeOut(const ClipboardRemoval &removal) {
    QSet<QUuid> ids;
    for (const ClipboardEntry &entry : removal.entries)
        ids.insert(entry.id);
    ClipboardRemoval taken = this->removal(ids, removal.isClearing);
    removeReferences(ids);
    return taken;
}

ClipboardRemoval ClipboardStore::removal(const QSet<QUuid> &ids, bool isClearing) const {
    ClipboardRemoval taken{.order = order(), .selection = m_selectedIDs, .isClearing = isClearing};
    std::ranges::copy_if(m_entries, std::back_inserter(taken.entries),
                         [&ids](const ClipboardEntry &entry) { return ids.contains(entry.id); });
    return taken;
}

void ClipboardStore::removeReferences(const QSet<QUuid> &ids) {
    requireMainThread();
    if (ids.isEmpty())
        return;
    removeEntries(ids);
    changed();
}

void ClipboardStore::removeEntries(const QSet<QUuid> &ids) {
    std::erase_if(m_entries, [&ids](const ClipboardEntry &entry) { return ids.contains(entry.id); });
    m_selectedIDs.subtract(ids);
    updateFileWatches();
}

void ClipboardStore::restoreReferences(const std::vector<ClipboardEntry> &entries, const QList<QUuid> &order,
                                       const QSet<QUuid> &selection, int generation) {
    requireMainThread();
    if (entries.empty())
        return;
    m_entries = inRestoredOrder(std::move(m_entries), entries, order, std::mem_fn(&ClipboardEntry::id));
    const QList<QUuid> present = this->order();
    m_selectedIDs = QSet<QUuid>(selection).intersect(QSet<QUuid>(present.cbegin(), present.cend()));
    m_importGeneration = generation;
    updateFileWatches();
    changed();
}

void ClipboardStore::rebindEditedReferences(const QSet<QUuid> &ids, const QString &path) {
    requireMainThread();
    const QString clean = QDir::cleanPath(path);
    const auto facts = m_services.files.facts(clean);
    if (ids.isEmpty() || !facts)
        return;
    const ClipboardEntry written = m_inspector.entryFor(clean, *facts);
    for (ClipboardEntry &entry : m_entries) {
        if (!ids.contains(entry.id))
            continue;
        const ClipboardEntry before = std::exchange(entry, written);
        entry.id = before.id;
        entry.originalPath = before.originalPath;
    }
    updateFileWatches();
    changed();
}

void ClipboardStore::changed() {
    if (onChange)
        onChange();
}

} // namespace tembra
