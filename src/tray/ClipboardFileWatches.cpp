#include "tray/ClipboardFileWatches.h"

namespace tembra {

ClipboardFileWatches::ClipboardFileWatches(FolderEvents &events, std::function<void()> onEvent)
    : m_events(events), m_onEvent(std::move(onEvent)) {}

void ClipboardFileWatches::watch(const QSet<QString> &paths) {
    QHash<QString, QSet<QString>> wanted;
    for (const QString &path : paths) {
        const qsizetype slash = path.lastIndexOf(u'/');
        wanted[path.first(std::max<qsizetype>(slash, 1))].insert(path.sliced(slash + 1));
    }
    m_folders.removeIf([&wanted](const auto &known) { return !wanted.contains(known.key()); });
    for (auto folder = wanted.cbegin(); folder != wanted.cend(); ++folder) {
        const auto known = m_folders.value(folder.key());
        if (known && known->names == folder.value())
            continue;
        auto handle = m_events.watchEntries(
            folder.key(), folder.value(),
            [this, path = folder.key()](std::uint32_t events) { receive(path, events); });
        if (handle)
            m_folders[folder.key()] = std::make_shared<Folder>(Folder{folder.value(), *std::move(handle)});
        else
            m_folders.remove(folder.key());
    }
}

void ClipboardFileWatches::receive(const QString &folder, std::uint32_t events) {
    // The folder itself is another one now, or somewhere else.
    if (events & (FolderEvents::rename | FolderEvents::remove | FolderEvents::revoke))
        m_folders.remove(folder);
    m_onEvent();
}

} // namespace tembra
