#pragma once

#include "base/Scheduler.h"
#include "platform/FolderEvents.h"
#include "platform/linux/InotifyInstance.h"
#include "platform/linux/LinuxFileFacts.h"

#include <optional>

namespace tembra {

// FolderEvents over inotify. Folders on other machines are looked at every few seconds besides, and so are
// all folders once the system has no more watches to give. The reader and the scheduler must outlive it, and
// it its handles.
class InotifyFolderEvents final : public FolderEvents {
public:
    InotifyFolderEvents(const LinuxFileFactsReader &reader, Scheduler &scheduler);

    [[nodiscard]] Result<std::unique_ptr<Handle>>
    watchDirectory(const QString &folder, std::function<void(std::uint32_t)> onEvents) override;
    [[nodiscard]] Result<std::unique_ptr<Handle>>
    watchEntries(const QString &folder, const QSet<QString> &names,
                 std::function<void(std::uint32_t)> onEvents) override;
    [[nodiscard]] Result<std::unique_ptr<Handle>>
    watchTree(const QString &folder, bool recursive, std::chrono::nanoseconds latency,
              std::function<void(std::vector<TreeEvent>)> onEvents) override;

private:
    [[nodiscard]] Result<std::unique_ptr<Handle>> watch(const QString &folder,
                                                        std::optional<QSet<QByteArray>> names,
                                                        std::function<void(std::uint32_t)> onEvents);

    const LinuxFileFactsReader &m_reader;
    Scheduler &m_scheduler;
    InotifyInstance m_instance;
    std::uint64_t m_lastId = 0;
};

} // namespace tembra
