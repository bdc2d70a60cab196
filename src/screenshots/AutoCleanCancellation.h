#pragma once

#include <mutex>

namespace tembra {

// Tells a run of auto-clean that it is not wanted any more. Once cancelled it stays so; a new run gets a new
// one. Any thread.
class AutoCleanCancellation {
public:
    void cancel() {
        const std::lock_guard lock(m_lock);
        m_cancelled = true;
    }
    [[nodiscard]] bool isCancelled() const {
        const std::lock_guard lock(m_lock);
        return m_cancelled;
    }

private:
    mutable std::mutex m_lock;
    bool m_cancelled = false;
};

} // namespace tembra
