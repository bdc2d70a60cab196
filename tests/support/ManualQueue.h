#pragma once

#include "base/SerialQueue.h"

#include <deque>
#include <utility>

namespace tembra {

// A queue whose jobs run when the test says so, on the test's thread.
class ManualQueue final : public SerialQueue {
public:
    void post(std::function<void()> job) override { m_jobs.push_back(std::move(job)); }

    [[nodiscard]] int count() const { return static_cast<int>(m_jobs.size()); }

    // Runs the jobs that are waiting, and those that they post.
    void runAll() {
        while (!m_jobs.empty()) {
            const auto job = std::move(m_jobs.front());
            m_jobs.pop_front();
            job();
        }
    }

private:
    std::deque<std::function<void()>> m_jobs;
};

} // namespace tembra
