#pragma once

#include "base/Scheduler.h"
#include "platform/Displays.h"
#include "platform/PanelWindows.h"

#include <functional>
#include <memory>

class QWidget;

namespace tembra {

// Finds out whether a window can stand at the top edge of the main screen, by one that nobody sees. Main
// thread.
class PanelProbe {
public:
    PanelProbe(PanelWindows &panels, const Displays &displays, Scheduler &scheduler);
    ~PanelProbe();
    PanelProbe(const PanelProbe &) = delete;
    PanelProbe &operator=(const PanelProbe &) = delete;

    // Tells whether it stands where it was put. One at a time.
    void start(std::function<void(bool isInPlace)> told);

    // Nobody is told any more.
    void cancel();

private:
    PanelWindows &m_panels;
    const Displays &m_displays;
    Scheduler &m_scheduler;
    std::unique_ptr<QWidget> m_panel;
    WorkItem m_answer;
};

} // namespace tembra
