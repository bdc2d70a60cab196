#include "platform/linux/LinuxFileReferences.h"

#include "base/FilePath.h"
#include "platform/linux/LinuxHeldFile.h"

#include <QDir>

#include <algorithm>
#include <fcntl.h>

namespace tembra {

namespace {

Descriptor openName(const QString &path) {
    return Descriptor(::open(pathBytes(path).constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
}

std::vector<MountKey> mountsOf(const QStringList &folders) {
    std::vector<MountKey> mounts;
    for (const QString &path : folders) {
        const Descriptor folder = openName(path);
        if (const auto mount = mountKeyOf(folder.number()))
            mounts.push_back(*mount);
    }
    return mounts;
}

} // namespace

bool LinuxFileReferences::isOnLastingMount(int file) const {
    const std::lock_guard lock(m_mutex);
    if (m_changes.haveHappened() || m_lastingMounts.empty())
        m_lastingMounts = mountsOf({QDir::rootPath(), QDir::homePath(), QDir::tempPath()});
    const auto mount = mountKeyOf(file);
    return mount && std::ranges::find(m_lastingMounts, *mount) != m_lastingMounts.end();
}

std::shared_ptr<const HeldFile> LinuxFileReferences::hold(const QString &path) const {
    if (*m_heldCount >= mostHeld)
        return nullptr;
    Descriptor file = openName(path);
    if (!file.isOpen() || !isOnLastingMount(file.number()))
        return nullptr;
    return std::make_shared<LinuxHeldFile>(std::move(file), m_heldCount);
}

} // namespace tembra
