#pragma once

#include "platform/linux/MountTableChanges.h"

#include <QByteArray>
#include <QHash>

#include <cstdint>
#include <mutex>

namespace tembra {

struct MountEntry;

// What is to be known about the file system that a file is on.
struct LinuxVolume {
    // Names the file system across mounts and restarts, as far as it can be named.
    std::uint64_t id = 0;
    // An inode number means the same file as long as the file exists.
    bool hasLastingInodes = false;
    // File handles mean the same file across mounts, so that the inode's generation in them can be trusted.
    bool hasLastingHandles = false;
    // Another machine's changes happen without events.
    bool isRemote = false;
};

// Whether a file system of that type is another machine's, or a program's that may ask one.
[[nodiscard]] bool isRemoteFileSystem(const QByteArray &type);

// The mounted file systems by device number. What was read once is kept until the mount table changes: a
// device number may then stand for another file system. Any thread.
class LinuxVolumes {
public:
    // The volume of the file at `path`, or of what a link there leads to. Device and mount are those that
    // statx told of it.
    [[nodiscard]] LinuxVolume of(std::uint64_t device, std::uint64_t mountId, const QByteArray &path,
                                 bool followsLinks);
    // Nothing is mounted by asking, and nothing on another machine is touched.
    [[nodiscard]] bool isMounted(std::uint64_t id);

private:
    std::mutex m_mutex;
    MountTableChanges m_changes;
    QHash<std::uint64_t, LinuxVolume> m_known;
};

} // namespace tembra
