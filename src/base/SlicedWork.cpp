#include "base/SlicedWork.h"

#include "base/MainThread.h"

#include <utility>

namespace tembra {

SlicedWork::SlicedWork(Scheduler &scheduler, UptimeClock uptime)
    : m_scheduler(scheduler), m_uptime(std::move(uptime)) {}

void SlicedWork::start(std::function<bool()> step, std::function<void()> done) {
    requireMainThread();
    const auto place = m_followers ? m_jobs.begin() + ++*m_followers : m_jobs.end();
    m_jobs.insert(place, {std::move(step), std::move(done)});
    if (!m_isInSlice && !m_nextSlice.isPending())
        run();
}

void SlicedWork::run() {
    const Uptime end = m_uptime() + slice;
    m_isInSlice = true;
    while (!m_jobs.empty() && m_uptime() < end) {
        if (m_jobs.front().step())
            continue;
        const auto done = std::move(m_jobs.front().done);
        m_followers = 0;
        done();
        m_followers.reset();
        m_jobs.pop_front();
    }
    m_isInSlice = false;
    if (!m_jobs.empty())
        m_nextSlice = m_scheduler.schedule(Scheduler::Duration::zero(), [this] { run(); });
}

} // namespace tembra
