#pragma once

#include "platform/Volumes.h"
#include "platform/linux/LinuxFileFacts.h"
#include "platform/linux/MountTable.h"

#include <mutex>

namespace tembra {

// Volumes by the kernel's mount table, which is read anew when it has changed. The reader must outlive it.
class LinuxMountedVolumes final : public Volumes {
public:
    explicit LinuxMountedVolumes(const LinuxFileFactsReader &reader) : m_reader(reader) {}

    [[nodiscard]] Result<Volume> volumeOf(const QString &path) const override;
    [[nodiscard]] std::optional<QString> mountPointOf(const Volume &volume) const override;

private:
    [[nodiscard]] bool isAt(const QString &mountPoint, const Volume &volume) const;

    const LinuxFileFactsReader &m_reader;
    mutable std::mutex m_mutex;
    mutable MountTableChanges m_changes;
    mutable std::vector<MountEntry> m_table = readMountTable();
};

} // namespace tembra
