#include "tray/ClipboardStore.h"

#include "base/MainThread.h"
#include "base/RestoredOrder.h"

#include <QDir>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <iterator>

namespace tembra {

ClipboardStore::ClipboardStore(const FileFactsReader &files) : m_files(files) {}

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

void ClipboardStore::add(int generation, const QStringList &paths) {
    requireMainThread();
    if (generation != m_importGeneration)
        return;
    for (const QString &path : paths) {
        const QString clean = QDir::cleanPath(path);
        if (const auto facts = m_files.facts(clean))
            m_entries.push_back({.id = QUuid::createUuid(),
                                 .originalPath = clean,
                                 .identity = ScreenshotFileIdentity::of(clean, *facts),
                                 .lastKnownPath = clean,
                                 .isFolder = facts->kind == FileKind::directory});
    }
    changed();
}

void ClipboardStore::select(const QSet<QUuid> &ids) {
    requireMainThread();
    m_selectedIDs = ids;
    changed();
}

void ClipboardStore::removeReferences(const QSet<QUuid> &ids) {
    requireMainThread();
    if (ids.isEmpty())
        return;
    std::erase_if(m_entries, [&ids](const ClipboardEntry &entry) { return ids.contains(entry.id); });
    m_selectedIDs.subtract(ids);
    changed();
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
    changed();
}

void ClipboardStore::rebindEditedReferences(const QSet<QUuid> &ids, const QString &path) {
    requireMainThread();
    const auto facts = m_files.facts(path);
    if (ids.isEmpty() || !facts)
        return;
    for (ClipboardEntry &entry : m_entries) {
        if (!ids.contains(entry.id))
            continue;
        entry.lastKnownPath = QDir::cleanPath(path);
        entry.identity = ScreenshotFileIdentity::of(path, *facts);
        entry.available = true;
    }
    changed();
}

bool ClipboardStore::canRead(const QMimeData &pasteboard) {
    return !files(pasteboard).isEmpty();
}

QStringList ClipboardStore::files(const QMimeData &pasteboard) {
    QStringList paths;
    for (const QUrl &url : pasteboard.urls()) {
        if (url.isLocalFile())
            paths += url.toLocalFile();
    }
    return paths;
}

bool ClipboardStore::receive(const QMimeData &pasteboard) {
    if (canReceive && !canReceive())
        return false;
    const QStringList paths = files(pasteboard);
    add(m_importGeneration, paths);
    return !paths.isEmpty();
}

void ClipboardStore::removeSelected() {
    removeReferences(QSet<QUuid>(m_selectedIDs));
}

void ClipboardStore::clear() {
    const QList<QUuid> all = order();
    removeReferences({all.cbegin(), all.cend()});
}

void ClipboardStore::setStatus(std::optional<QString> status) {
    m_status = std::move(status);
    changed();
}

void ClipboardStore::changed() {
    if (onChange)
        onChange();
}

} // namespace tembra
