#pragma once

#include "base/Scheduler.h"
#include "shelf/ShelfTab.h"

#include <functional>
#include <optional>

namespace tembra {

// Switches to a tab on which the pointer rests for 0.25 s. Main thread; owned by ShelfController. A tab that
// is left before that never activates.
class TabHover {
public:
    explicit TabHover(Scheduler &scheduler);

    // Whether the setting allows it and the tab is in the strip.
    std::function<bool(ShelfTab)> canSwitchTo;
    std::function<void(ShelfTab)> onActivate;

    // What is dragged switches tabs whatever the setting says.
    void hoverTab(ShelfTab tab, bool duringDrag = false);
    // The pointer left the tab; without a tab, whatever is pending is dropped.
    void cancelTabHover(std::optional<ShelfTab> tab = std::nullopt);

private:
    Scheduler &m_scheduler;
    std::optional<ShelfTab> m_pending;
    WorkItem m_work;
};

} // namespace tembra
