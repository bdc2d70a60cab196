#pragma once

#include "base/Result.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace tembra {

// A file system at the place where it is mounted.
struct Volume {
    // Names the file system across mounts and restarts; the same as in FileResource.
    std::uint64_t id = 0;
    QString mountPoint;
    // The folder of the file system that is seen at the mount point: "/" unless only a part is mounted there.
    QString root;
    // Of this machine: asking does not wait for another one.
    bool isLocal = true;

    bool operator==(const Volume &) const = default;
};

// The mounted volumes. Nothing is mounted by asking. Any thread.
class Volumes {
public:
    virtual ~Volumes() = default;
    // Of a file or folder; of a link itself. Error: "POSIX" with the errno.
    [[nodiscard]] virtual Result<Volume> volumeOf(const QString &path) const = 0;
    // Where the same part of the file system is mounted now: at its place if it is there, else at another
    // one. Nothing when it is not mounted.
    [[nodiscard]] virtual std::optional<QString> mountPointOf(const Volume &volume) const = 0;
};

} // namespace tembra
