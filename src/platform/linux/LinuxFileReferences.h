#pragma once

#include "platform/FileReferences.h"
#include "platform/linux/FileFinder.h"

namespace tembra {

// FileReferences by looking for the identity near the last known path.
class LinuxFileReferences final : public FileReferences {
public:
    explicit LinuxFileReferences(const FileFactsReader &reader) : m_finder(reader, {}) {}

    [[nodiscard]] std::optional<QString> path(const FileResource &resource,
                                              const QString &lastKnownPath) const override {
        return m_finder.find(resource, lastKnownPath);
    }

private:
    const FileFinder m_finder;
};

} // namespace tembra
