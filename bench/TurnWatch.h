#pragma once

#include "Timing.h"
#include "base/Scheduler.h"

#include <functional>

namespace tembra::bench {

// Sees how long the main thread's event loop is held up while this lives.
class TurnWatch {
public:
    explicit TurnWatch(Scheduler &scheduler) : m_scheduler(scheduler) { takeTurn(); }
    TurnWatch(const TurnWatch &) = delete;
    TurnWatch &operator=(const TurnWatch &) = delete;

    // Milliseconds between two turns.
    [[nodiscard]] double longestHold() const { return m_longest; }

private:
    void takeTurn() {
        m_longest = std::max(m_longest, millisecondsSince(m_last));
        m_last = Clock::now();
        m_next = m_scheduler.schedule(std::chrono::nanoseconds(0), [this] { takeTurn(); });
    }

    Scheduler &m_scheduler;
    Clock::time_point m_last = Clock::now();
    double m_longest = 0;
    WorkItem m_next;
};

} // namespace tembra::bench
