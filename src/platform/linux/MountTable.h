#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <vector>

namespace tembra {

// One line of /proc/self/mountinfo.
struct MountEntry {
    std::uint64_t id = 0;
    QByteArray mountPoint;
    QByteArray type;
    QByteArray source;
    // The folder of the file system that is seen at the mount point.
    QByteArray root;

    bool operator==(const MountEntry &) const = default;
};

// The file systems mounted now, in the kernel's order. Any thread.
[[nodiscard]] std::vector<MountEntry> readMountTable();
// Nothing when the line is not as the kernel writes them.
[[nodiscard]] std::optional<MountEntry> parseMountLine(const QByteArray &line);

} // namespace tembra
