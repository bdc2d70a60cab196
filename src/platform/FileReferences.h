#pragma once

#include "platform/FileFacts.h"

#include <QString>

#include <optional>

namespace tembra {

// Follows a file across renames and moves by its identity. A reference is a value that costs no descriptor,
// so a list of a hundred thousand can hold one each. Any thread.
class FileReferences {
public:
    virtual ~FileReferences() = default;
    // Where the file is now: at `lastKnownPath`, or under another name in that folder, its subfolders or its
    // neighbours. Nothing when it is not found there.
    [[nodiscard]] virtual std::optional<QString> path(const FileResource &resource,
                                                      const QString &lastKnownPath) const = 0;
};

} // namespace tembra
