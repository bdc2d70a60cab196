#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tembra {

// The handle of delayed work. Main thread; move-only. Dropping the handle cancels what has not run yet, so an
// owner that goes away takes its pending work with it.
class WorkItem {
public:
    class State {
    public:
        virtual ~State() = default;
        virtual void cancel() = 0;
        [[nodiscard]] virtual bool isPending() const = 0;
    };

    WorkItem() = default;
    explicit WorkItem(std::shared_ptr<State> state);
    ~WorkItem();
    WorkItem(WorkItem &&other) noexcept = default;
    WorkItem &operator=(WorkItem &&other) noexcept;

    void cancel();
    [[nodiscard]] bool isPending() const;

private:
    std::shared_ptr<State> m_state;
};

// The only source of delays. `schedule` is main thread only and runs the work on the main thread, no sooner
// than the delay and, when the tolerance allows, together with other wake-ups. `post` may be called from any
// thread.
class Scheduler {
public:
    using Duration = std::chrono::nanoseconds;

    virtual ~Scheduler() = default;
    [[nodiscard]] virtual WorkItem schedule(Duration delay, std::function<void()> work,
                                            Duration tolerance = Duration::zero()) = 0;
    virtual void post(std::function<void()> work) = 0;
};

} // namespace tembra
