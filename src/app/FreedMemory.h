#pragma once

#include "base/Scheduler.h"

#include <functional>

namespace tembra {

// Gives back to the system what the program has freed, some time after work that needed much of it. The
// allocator keeps it otherwise, for each of its arenas the most that was ever needed there: a program that
// runs for weeks would only get larger. Main thread.
class FreedMemory {
public:
    // Longer than the animations and the threads that make thumbnails last.
    static constexpr std::chrono::seconds delay{5};

    // The scheduler must outlive this.
    FreedMemory(Scheduler &scheduler, std::function<void()> giveBack)
        : m_scheduler(scheduler), m_giveBack(std::move(giveBack)) {}

    // Any number of times until then is once.
    void giveBackSoon() {
        if (!m_pending.isPending())
            m_pending = m_scheduler.schedule(delay, m_giveBack, delay);
    }

private:
    Scheduler &m_scheduler;
    const std::function<void()> m_giveBack;
    WorkItem m_pending;
};

} // namespace tembra
