#pragma once

#include "platform/FolderEvents.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>

namespace tembra {

// Watches single files by the entries of their folders: one watch a folder, which tells only of the names
// asked for, so that a busy folder costs little. Main thread.
class ClipboardFileWatches {
public:
    ClipboardFileWatches(FolderEvents &events, std::function<void()> onEvent);

    // Exactly these files from now on. A folder that cannot be watched is tried again the next time.
    void watch(const QSet<QString> &paths);
    void clear() { m_folders.clear(); }

private:
    struct Folder {
        QSet<QString> names;
        std::unique_ptr<FolderEvents::Handle> handle;
    };

    void receive(const QString &folder, std::uint32_t events);

    FolderEvents &m_events;
    const std::function<void()> m_onEvent;
    QHash<QString, std::shared_ptr<Folder>> m_folders;
};

} // namespace tembra
