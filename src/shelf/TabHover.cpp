#include "shelf/TabHover.h"

namespace tembra {

using namespace std::chrono_literals;

TabHover::TabHover(Scheduler &scheduler) : m_scheduler(scheduler) {}

void TabHover::hoverTab(ShelfTab tab, bool duringDrag) {
    cancelTabHover();
    if (!duringDrag && !canSwitchTo(tab))
        return;
    m_pending = tab;
    m_work = m_scheduler.schedule(250ms, [this, tab] {
        m_pending.reset();
        onActivate(tab);
    });
}

void TabHover::cancelTabHover(std::optional<ShelfTab> tab) {
    if (tab && tab != m_pending)
        return;
    m_pending.reset();
    m_work.cancel();
}

} // namespace tembra
