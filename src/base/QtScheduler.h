#pragma once

#include "base/Scheduler.h"

namespace tembra {

// Scheduler on the event loop of the application object, which must outlive it. Delays of whole milliseconds,
// never early; without a tolerance the timers are precise.
class QtScheduler final : public Scheduler {
public:
    WorkItem schedule(Duration delay, std::function<void()> work,
                      Duration tolerance = Duration::zero()) override;
    void post(std::function<void()> work) override;
};

} // namespace tembra
