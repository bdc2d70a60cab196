#pragma once

#include "base/Clocks.h"
#include "base/Scheduler.h"

#include <deque>
#include <mutex>
#include <vector>

namespace tembra {

// A scheduler whose time is moved by the test. Work due at the same time runs in the order scheduled; posted
// work runs before time moves.
class ManualScheduler final : public Scheduler {
public:
    WorkItem schedule(Duration delay, std::function<void()> work,
                      Duration tolerance = Duration::zero()) override;
    void post(std::function<void()> work) override;

    // Runs what is posted and what is due now.
    void settle();
    // Moves time on, running everything that falls due on the way at its own time.
    void advance(Duration duration);

    [[nodiscard]] Uptime now() const { return m_now; }
    [[nodiscard]] UptimeClock uptimeClock() const {
        return [this] { return m_now; };
    }
    // A wall clock that goes with the virtual time from the given date.
    [[nodiscard]] WallClock wallClock(Instant start) const {
        return [this, start] { return start + m_now; };
    }
    [[nodiscard]] int pendingCount() const;
    // Delay from now to the earliest pending work; -1 ns when there is none.
    [[nodiscard]] Duration nextDelay() const;
    // How much later it may be.
    [[nodiscard]] Duration nextTolerance() const;

private:
    struct Entry;
    class EntryState;

    void runPosted();
    std::shared_ptr<Entry> earliestDueBy(Uptime time);
    [[nodiscard]] std::shared_ptr<Entry> next() const;

    Uptime m_now{0};
    std::vector<std::shared_ptr<Entry>> m_entries;
    std::mutex m_mutex;
    std::deque<std::function<void()>> m_posted;
};

} // namespace tembra
