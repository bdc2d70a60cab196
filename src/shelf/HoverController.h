#pragma once

#include "base/Clocks.h"
#include "base/Scheduler.h"
#include "platform/InputMonitor.h"
#include "shelf/FileInteraction.h"
#include "shelf/HoverSnapshot.h"
#include "shelf/SpaceHoverGate.h"

#include <functional>
#include <memory>

namespace tembra {

// Decides from the pointer's place when the collapsed shelf opens and when the open one closes. It holds no
// geometry: each decision asks for a fresh snapshot. Main thread, screen points; owned by ShelfController.
class HoverController {
public:
    HoverController(Scheduler &scheduler, const UptimeClock &uptime, InputMonitor &inputMonitor);

    std::function<HoverSnapshot()> snapshot = [] { return HoverSnapshot(); };
    // The program in front holds a selection of files.
    std::function<bool()> hasFileSelection = [] { return false; };
    std::function<void(bool expanded)> onSetExpanded;
    // A click on the tab in click mode, which opens the shelf or closes it.
    std::function<void()> onActivationClick;
    std::function<ScreenPoint()> mouseLocation;
    // Whether the shelf may be shown at that place now.
    std::function<bool(ScreenPoint)> isOpeningSurfaceReady = [](ScreenPoint) { return true; };

    void start();
    void stop();
    void stopObservingEvents();

    // The pointer may have crossed a boundary: it is looked at on the next turn of the main loop.
    void requestPointerEvaluation();
    void updateHover(ScreenPoint pointer);

    // An open made by the user: the shelf stays open until the user closes it.
    void openManually();
    // Files are being dragged from another program.
    [[nodiscard]] bool isDraggingFiles() const { return m_interaction.isDragging(); }
    // The owner reports that the shelf has closed.
    void didCollapse();
    void activeSpaceChanged();

    void scheduleCollapse();
    void cancelCollapse();

private:
    void receiveMouseEvent(const InputMonitor::Event &event);
    // Whether the decision about this pointer is final; if not, a transition check decides it later.
    [[nodiscard]] bool decide(const HoverSnapshot &now, ScreenPoint pointer, bool isInNotch);
    [[nodiscard]] bool decideInside(const HoverSnapshot &now, ScreenPoint pointer);
    void decideOutside(const HoverSnapshot &now, ScreenPoint pointer);
    void scheduleTransitionCheck();
    void collapseIfLeft();

    Scheduler &m_scheduler;
    const UptimeClock m_uptime;
    InputMonitor &m_inputMonitor;
    SpaceHoverGate m_spaceGate;
    FileInteraction m_interaction;
    bool m_isRunning = false;
    bool m_pointerWasInNotch = false;
    bool m_manuallyOpened = false;
    bool m_suppressHoverUntilExit = false;
    int m_transitionChecksRemaining = 0;
    std::unique_ptr<InputMonitor::Observation> m_monitor;
    WorkItem m_pointerCheck;
    WorkItem m_transitionCheck;
    WorkItem m_collapseWork;
};

} // namespace tembra
