#pragma once

#include <memory>
#include <mutex>

namespace tembra {

// Tells work that it is not wanted any more. Copies share the one word; once cancelled it stays so. Any
// thread.
class Cancellation {
public:
    void cancel() const {
        const std::lock_guard lock(m_shared->lock);
        m_shared->isCancelled = true;
    }
    [[nodiscard]] bool isCancelled() const {
        const std::lock_guard lock(m_shared->lock);
        return m_shared->isCancelled;
    }

private:
    struct Shared {
        std::mutex lock;
        bool isCancelled = false;
    };

    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};

} // namespace tembra
