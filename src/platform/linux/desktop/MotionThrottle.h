#pragma once

#include "base/Scheduler.h"

#include <functional>

namespace tembra {

// Passes on at most sixty moves a second: the first at once, then the latest of each interval. Nothing is
// pending once the moves have ended. Main thread.
class MotionThrottle {
public:
    MotionThrottle(Scheduler &scheduler, std::function<void()> onMove)
        : m_scheduler(scheduler), m_onMove(std::move(onMove)) {}

    void move() {
        if (m_pause.isPending()) {
            m_movedInPause = true;
            return;
        }
        startPause();
        m_onMove();
    }

    void cancel() {
        m_pause.cancel();
        m_movedInPause = false;
    }

private:
    void startPause() {
        m_movedInPause = false;
        m_pause = m_scheduler.schedule(std::chrono::milliseconds(17), [this] {
            if (m_movedInPause)
                move();
        });
    }

    Scheduler &m_scheduler;
    const std::function<void()> m_onMove;
    WorkItem m_pause;
    bool m_movedInPause = false;
};

} // namespace tembra
