#pragma once

#include "platform/linux/TrashFolder.h"

#include <QByteArray>

#include <memory>
#include <mutex>

namespace tembra {

// The user's own Trash. It stays open and is opened again only when it went away; the Trash folders of other
// volumes must not stay so, or nobody could unmount them. Any thread.
class HomeTrash {
public:
    explicit HomeTrash(QByteArray path);

    // Made if there is none. EXDEV if files cannot be renamed there from the open folder.
    [[nodiscard]] Result<std::shared_ptr<const TrashFolder>> forFilesIn(int folder);

private:
    [[nodiscard]] Result<std::shared_ptr<const TrashFolder>> opened(const MountKey &mount);

    const QByteArray m_path;
    std::mutex m_mutex;
    std::shared_ptr<const TrashFolder> m_folder;
};

} // namespace tembra
