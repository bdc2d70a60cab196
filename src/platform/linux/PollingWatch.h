#pragma once

#include "base/Scheduler.h"
#include "platform/FolderEvents.h"

#include <QString>

namespace tembra {

// Looks at a folder's times every few seconds, for file systems that tell no events of other machines' doing
// and for systems whose watches are used up. Main thread.
class PollingWatch final : public FolderEvents::Handle {
public:
    PollingWatch(Scheduler &scheduler, const QString &folder, std::function<void(std::uint32_t)> onEvents);

private:
    void wait();
    void look();

    Scheduler &m_scheduler;
    const QByteArray m_folder;
    const std::function<void(std::uint32_t)> m_onEvents;
    std::int64_t m_lastChange = 0;
    WorkItem m_work;
};

} // namespace tembra
