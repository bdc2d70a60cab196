#pragma once

#include "platform/FileFacts.h"
#include "platform/HeldFile.h"

#include <QString>

#include <memory>
#include <optional>

namespace tembra {

// Follows a file across renames and moves. Any thread.
class FileReferences {
public:
    virtual ~FileReferences() = default;
    // Where the file is now: at `lastKnownPath`, or under another name in that folder, its subfolders or its
    // neighbours. Nothing when it is not found there. Costs nothing to keep, so that a list of a hundred
    // thousand can be followed so.
    [[nodiscard]] virtual std::optional<QString> path(const FileResource &resource,
                                                      const QString &lastKnownPath) const = 0;
    // The same anywhere beneath a folder, which takes its time; a very large one is not searched to its end.
    [[nodiscard]] virtual std::optional<QString> pathBeneath(const QString &folder,
                                                             const FileResource &resource) const = 0;
    // Keeps a file in sight. Nothing when it is not there, when too many are held already, or when its volume
    // could not be unmounted meanwhile.
    [[nodiscard]] virtual std::shared_ptr<const HeldFile> hold(const QString &path) const = 0;
};

} // namespace tembra
