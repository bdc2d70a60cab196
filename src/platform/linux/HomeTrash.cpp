#include "platform/linux/HomeTrash.h"

#include "platform/linux/PosixError.h"

#include <fcntl.h>

namespace tembra {

namespace {

// Where the folder is, or would be if it were made.
Result<MountKey> mountOfPath(QByteArray path) {
    for (;;) {
        const Descriptor folder(::open(path.isEmpty() ? "/" : path.constData(), O_PATH | O_CLOEXEC));
        if (folder.isOpen())
            return mountKeyOf(folder.number());
        const qsizetype slash = path.lastIndexOf('/');
        if (errno != ENOENT || slash < 0)
            return failure(posixError());
        path.truncate(slash);
    }
}

} // namespace

HomeTrash::HomeTrash(QByteArray path) : m_path(std::move(path)) {}

Result<std::shared_ptr<const TrashFolder>> HomeTrash::opened(const MountKey &mount) {
    if (m_folder && m_folder->isUsable())
        return m_folder;
    m_folder.reset();
    // Not made for a file that it cannot take.
    if (mountOfPath(m_path) != mount)
        return failure(posixError(EXDEV));
    auto folder = TrashFolder::home(m_path);
    if (folder)
        m_folder = *folder;
    return folder;
}

Result<std::shared_ptr<const TrashFolder>> HomeTrash::forFilesIn(int folder) {
    const std::lock_guard lock(m_mutex);
    return mountKeyOf(folder).and_then([this](const MountKey &mount) {
        auto home = opened(mount);
        if (home && (*home)->mount() != mount)
            home = failure(posixError(EXDEV));
        return home;
    });
}

} // namespace tembra
