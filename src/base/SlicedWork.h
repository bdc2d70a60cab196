#pragma once

#include "base/Clocks.h"
#include "base/Scheduler.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>

namespace tembra {

// Works through many small steps on the main thread without holding it for long: a slice at a time, with the
// event loop in between. Jobs run one after the other. Dropping it ends everything after the step that is
// running.
class SlicedWork {
public:
    // Short enough that a shelf that opens meanwhile stays smooth.
    static constexpr std::chrono::milliseconds slice{8};

    SlicedWork(Scheduler &scheduler, UptimeClock uptime);

    // `step` does one thing and tells whether there is another; `done` follows the last. The first slice runs
    // at once unless another job is under way. What `done` starts comes before the jobs that wait.
    void start(std::function<bool()> step, std::function<void()> done);
    [[nodiscard]] bool isRunning() const { return !m_jobs.empty(); }

private:
    struct Job {
        std::function<bool()> step;
        std::function<void()> done;
    };

    void run();

    Scheduler &m_scheduler;
    const UptimeClock m_uptime;
    std::deque<Job> m_jobs;
    bool m_isInSlice = false;
    // While a job's `done` runs: how many jobs it has started.
    std::optional<std::ptrdiff_t> m_followers;
    WorkItem m_nextSlice;
};

} // namespace tembra
