#include "shelf/HoverController.h"

#include "base/MainThread.h"

namespace tembra {

using namespace std::chrono_literals;

namespace {

constexpr int checksAfterSpaceChange = 20;
constexpr auto checkInterval = 100ms;

} // namespace

HoverController::HoverController(Scheduler &scheduler, const UptimeClock &uptime, InputMonitor &inputMonitor)
    : m_scheduler(scheduler), m_uptime(uptime), m_inputMonitor(inputMonitor) {
    mouseLocation = [this] { return m_inputMonitor.pointer(); };
}

void HoverController::start() {
    requireMainThread();
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_monitor =
        m_inputMonitor.observe([this](const InputMonitor::Event &event) { receiveMouseEvent(event); });
    requestPointerEvaluation();
}

void HoverController::stop() {
    stopObservingEvents();
    m_isRunning = false;
    m_manuallyOpened = false;
    m_suppressHoverUntilExit = false;
    m_pointerWasInNotch = false;
}

void HoverController::stopObservingEvents() {
    m_monitor.reset();
    m_pointerCheck.cancel();
    m_transitionCheck.cancel();
    cancelCollapse();
}

void HoverController::requestPointerEvaluation() {
    if (!m_isRunning || !m_monitor || m_pointerCheck.isPending())
        return;
    m_pointerCheck = m_scheduler.schedule(0s, [this] { updateHover(mouseLocation()); });
}

void HoverController::updateHover(ScreenPoint pointer) {
    requireMainThread();
    if (!m_isRunning)
        return;
    const HoverSnapshot now = snapshot();
    if (now.keepsOpen(pointer))
        m_interaction.pickedUp();
    const bool isInNotch = now.expanded ? now.contains(pointer, now.notch) : now.isInActivationArea(pointer);
    if (!decide(now, pointer, isInNotch))
        return;
    m_pointerWasInNotch = isInNotch;
    m_transitionCheck.cancel();
}

bool HoverController::decide(const HoverSnapshot &now, ScreenPoint pointer, bool isInNotch) {
    if (now.choosingFolder)
        return true;
    if (m_suppressHoverUntilExit) {
        if (now.keepsOpen(pointer))
            return true;
        m_suppressHoverUntilExit = false;
    }
    // Who drags cannot click, so a file that is brought opens the shelf in every mode.
    if (m_interaction.isDragging() && !now.expanded && now.isNearActivationArea(pointer))
        return decideInside(now, pointer);
    // A shelf opened by hand is closed by hand.
    if (now.activationMode != ActivationMode::hover || m_manuallyOpened)
        return true;
    if (isInNotch || (now.compact && now.containsPanel(pointer, now.visiblePanel)))
        return decideInside(now, pointer);
    if (now.expanded)
        decideOutside(now, pointer);
    return true;
}

bool HoverController::decideInside(const HoverSnapshot &now, ScreenPoint pointer) {
    cancelCollapse();
    if (now.expanded)
        return true;
    const Uptime uptime = m_uptime();
    const bool isReady = isOpeningSurfaceReady(pointer);
    if (!isReady)
        m_spaceGate.hold(uptime);
    if (!isReady || !m_spaceGate.lets(uptime)) {
        m_pointerWasInNotch = false;
        scheduleTransitionCheck();
        return false;
    }
    // A pointer that has not left the notch since it was last looked at opens nothing.
    if (!m_pointerWasInNotch || now.compact)
        onSetExpanded(true);
    return true;
}

void HoverController::decideOutside(const HoverSnapshot &now, ScreenPoint pointer) {
    if (now.keepsOpen(pointer) || !m_interaction.isIdle() || now.previewOpen)
        cancelCollapse();
    else if (!m_collapseWork.isPending())
        scheduleCollapse();
}

void HoverController::openManually() {
    if (snapshot().choosingFolder)
        return;
    m_manuallyOpened = true;
    m_transitionCheck.cancel();
    cancelCollapse();
    onSetExpanded(true);
}

void HoverController::didCollapse() {
    m_manuallyOpened = false;
    m_transitionCheck.cancel();
    m_suppressHoverUntilExit = snapshot().keepsOpen(mouseLocation());
}

void HoverController::activeSpaceChanged() {
    m_spaceGate.arm(m_uptime());
    m_transitionChecksRemaining = checksAfterSpaceChange;
    m_pointerWasInNotch = false;
    m_suppressHoverUntilExit = false;
    cancelCollapse();
    updateHover(mouseLocation());
}

void HoverController::scheduleTransitionCheck() {
    if (!m_monitor || m_transitionCheck.isPending() || m_transitionChecksRemaining < 1)
        return;
    --m_transitionChecksRemaining;
    m_transitionCheck = m_scheduler.schedule(checkInterval, [this] { updateHover(mouseLocation()); });
}

void HoverController::scheduleCollapse() {
    cancelCollapse();
    if (snapshot().activationMode != ActivationMode::hover)
        return;
    m_collapseWork = m_scheduler.schedule(0s, [this] { collapseIfLeft(); });
}

void HoverController::cancelCollapse() {
    m_collapseWork.cancel();
}

void HoverController::collapseIfLeft() {
    const HoverSnapshot now = snapshot();
    const bool mayCollapse = now.activationMode == ActivationMode::hover && now.expanded &&
                             !now.choosingFolder && !now.previewOpen && m_interaction.isIdle();
    if (mayCollapse && !now.keepsOpen(mouseLocation()))
        onSetExpanded(false);
}

void HoverController::receiveMouseEvent(const InputMonitor::Event &event) {
    const HoverSnapshot now = snapshot();
    switch (event.kind) {
    case InputMonitor::Kind::leftDown:
        if (event.local || now.keepsOpen(event.point))
            m_interaction.pressedShelf();
        else
            m_interaction.pressed(event.point, hasFileSelection());
        if (now.activationMode == ActivationMode::click && onActivationClick &&
            (now.expanded ? now.contains(event.point, now.notch) : now.isInActivationArea(event.point)))
            onActivationClick();
        break;
    case InputMonitor::Kind::leftUp:
        m_interaction.released(now.expanded);
        break;
    case InputMonitor::Kind::leftDragged:
        m_interaction.moved(event.point, m_inputMonitor.isForeignDragOffered());
        if (!m_interaction.isDragging())
            return;
        break;
    case InputMonitor::Kind::rightDown:
    case InputMonitor::Kind::moved:
        break;
    }
    updateHover(event.point);
}

} // namespace tembra
