#pragma once

#include "base/Clocks.h"

#include <optional>

namespace tembra {

// Holds back opening while the desktop changes: at least half a second from when it was armed, and until the
// pointer has been in a ready notch for 0.15 seconds. A value; the uptime is handed in.
class SpaceHoverGate {
public:
    void arm(Uptime now);
    [[nodiscard]] bool isWaiting() const { return m_waiting; }
    // The surface is not ready: the wait begins, or its second half does anew.
    void hold(Uptime now);
    // The pointer is in a ready notch: whether it may open the shelf. Then the gate is released.
    [[nodiscard]] bool lets(Uptime now);

private:
    bool m_waiting = false;
    Uptime m_blockedUntil{0};
    std::optional<Uptime> m_visibleSince;
};

} // namespace tembra
