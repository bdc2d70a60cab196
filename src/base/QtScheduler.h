#pragma once

#include "base/Scheduler.h"

#include <memory>

namespace tembra {

// Scheduler on the event loop of the main thread, which makes it and ends it. Delays of whole milliseconds,
// never early; without a tolerance the timers are precise. What was posted and has not run when it ends is
// dropped.
class QtScheduler final : public Scheduler {
public:
    QtScheduler();
    ~QtScheduler() override;
    QtScheduler(const QtScheduler &) = delete;
    QtScheduler &operator=(const QtScheduler &) = delete;

    WorkItem schedule(Duration delay, std::function<void()> work,
                      Duration tolerance = Duration::zero()) override;
    // Work is destroyed on the main thread too.
    void post(std::function<void()> work) override;

private:
    class Receiver;

    const std::unique_ptr<Receiver> m_receiver;
};

} // namespace tembra
