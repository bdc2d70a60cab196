#pragma once

#include "platform/FileReferences.h"
#include "platform/linux/FileFinder.h"
#include "platform/linux/MountKey.h"
#include "platform/linux/MountTableChanges.h"

#include <atomic>
#include <mutex>
#include <vector>

namespace tembra {

// FileReferences by looking for the identity, and by descriptors for a few hundred files. A descriptor keeps
// a volume from being unmounted, so files are held only where nothing can be unmounted while the session
// lasts: on the mounts of the root, of the home and of the temporary folder.
class LinuxFileReferences final : public FileReferences {
public:
    static constexpr int mostHeld = 256;

    explicit LinuxFileReferences(const FileFactsReader &reader) : m_finder(reader, {}) {}

    [[nodiscard]] std::optional<QString> path(const FileResource &resource,
                                              const QString &lastKnownPath) const override {
        return m_finder.find(resource, lastKnownPath);
    }
    [[nodiscard]] std::optional<QString> pathBeneath(const QString &folder,
                                                     const FileResource &resource) const override {
        return m_finder.findBeneath(folder, resource);
    }
    [[nodiscard]] std::shared_ptr<const HeldFile> hold(const QString &path) const override;

private:
    [[nodiscard]] bool isOnLastingMount(int file) const;

    const FileFinder m_finder;
    const std::shared_ptr<std::atomic<int>> m_heldCount = std::make_shared<std::atomic<int>>(0);
    mutable std::mutex m_mutex;
    mutable MountTableChanges m_changes;
    // Those that are not unmounted; empty before they are asked for.
    mutable std::vector<MountKey> m_lastingMounts;
};

} // namespace tembra
