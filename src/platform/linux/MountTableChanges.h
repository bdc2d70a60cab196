#pragma once

#include "platform/linux/Descriptor.h"

#include <fcntl.h>
#include <poll.h>

namespace tembra {

// Tells whether something was mounted or unmounted since it was last asked. One thread at a time.
class MountTableChanges {
public:
    // True as well when the system does not tell.
    [[nodiscard]] bool haveHappened() {
        // The kernel raises POLLPRI for a change since the last call, see proc(5).
        pollfd request{m_table.number(), POLLPRI, 0};
        return !m_table.isOpen() || ::poll(&request, 1, 0) != 0;
    }

private:
    Descriptor m_table{::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC)};
};

} // namespace tembra
