#pragma once

#include "base/Scheduler.h"

#include <functional>

namespace tembra {

// Ends a notice on the shelf when its time is over. Main thread.
class ShelfNotificationLifetime {
public:
    explicit ShelfNotificationLifetime(Scheduler &scheduler) : m_scheduler(scheduler) {}

    // Starts the time anew.
    void begin(Scheduler::Duration duration, std::function<void()> onEnd) {
        m_work = m_scheduler.schedule(duration, std::move(onEnd));
    }
    void end() { m_work.cancel(); }

private:
    Scheduler &m_scheduler;
    WorkItem m_work;
};

} // namespace tembra
