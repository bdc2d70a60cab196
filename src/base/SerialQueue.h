#pragma once

#include <functional>

namespace tembra {

// A named background queue: jobs run one at a time in the order posted. `post` may be called from any thread.
// A job gets values, never model objects; its result comes back through performInBackground.
class SerialQueue {
public:
    virtual ~SerialQueue() = default;
    virtual void post(std::function<void()> job) = 0;
};

} // namespace tembra
