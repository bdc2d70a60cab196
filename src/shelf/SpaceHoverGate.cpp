#include "shelf/SpaceHoverGate.h"

namespace tembra {

using namespace std::chrono_literals;

void SpaceHoverGate::arm(Uptime now) {
    m_waiting = true;
    m_blockedUntil = now + 500ms;
    m_visibleSince.reset();
}

void SpaceHoverGate::hold(Uptime now) {
    if (!m_waiting)
        arm(now);
    m_visibleSince.reset();
}

bool SpaceHoverGate::lets(Uptime now) {
    if (!m_waiting)
        return true;
    if (!m_visibleSince)
        m_visibleSince = now;
    if (now < m_blockedUntil || now - *m_visibleSince < 150ms)
        return false;
    m_waiting = false;
    m_visibleSince.reset();
    return true;
}

} // namespace tembra
