#include "platform/linux/LinuxMountedVolumes.h"

#include "base/FilePath.h"

#include <algorithm>
#include <sys/stat.h>

namespace tembra {

Result<Volume> LinuxMountedVolumes::volumeOf(const QString &path) const {
    return m_reader.statusOf(path).map([&](const struct statx &status) {
        const LinuxVolume known = m_reader.volumeOf(status, path);
        // Below a changed root the table does not hold the mount of the root itself.
        MountEntry mount{.mountPoint = "/", .root = "/"};
        {
            const std::lock_guard lock(m_mutex);
            if (m_changes.haveHappened())
                m_table = readMountTable();
            const auto found = std::ranges::find(m_table, status.stx_mnt_id, &MountEntry::id);
            if (found != m_table.end())
                mount = *found;
        }
        return Volume{.id = known.id,
                      .mountPoint = pathFromBytes(mount.mountPoint),
                      .root = pathFromBytes(mount.root),
                      .isLocal = !known.isRemote};
    });
}

bool LinuxMountedVolumes::isAt(const QString &mountPoint, const Volume &volume) const {
    const auto found = volumeOf(mountPoint);
    return found && found->id == volume.id && found->mountPoint == mountPoint && found->root == volume.root;
}

std::optional<QString> LinuxMountedVolumes::mountPointOf(const Volume &volume) const {
    if (isAt(volume.mountPoint, volume))
        return volume.mountPoint;
    for (const MountEntry &mount : readMountTable()) {
        // Asking another machine's file system may wait for it, asking an automatic mount may mount it.
        if (isRemoteFileSystem(mount.type) || mount.type == "autofs")
            continue;
        const QString mountPoint = pathFromBytes(mount.mountPoint);
        if (pathFromBytes(mount.root) == volume.root && isAt(mountPoint, volume))
            return mountPoint;
    }
    return std::nullopt;
}

} // namespace tembra
