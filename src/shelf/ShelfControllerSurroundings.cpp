// The desktop around the shelf: displays and disks that come and go, sleep, and the passing of days.

#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfController.h"
#include "shelf/ShelfSurfaces.h"

#include <QDateTime>

namespace tembra {

using namespace std::chrono_literals;

namespace {

// Screens come and go in bursts while a desktop rearranges itself.
constexpr auto displaySettling = 200ms;

} // namespace

void ShelfController::workspaceChanged(Workspace::Event event) {
    switch (event) {
    case Workspace::Event::activeSpaceChanged:
        m_hover.activeSpaceChanged();
        break;
    case Workspace::Event::didWake:
        refreshTimeline();
        m_hover.requestPointerEvaluation();
        break;
    case Workspace::Event::didMount:
        m_settings.refreshFolderAccess();
        m_settings.refreshUnresolvedPins(true);
        // What is mounted over a folder hides it without a word.
        refreshWatchers();
        updateFolderState();
        break;
    case Workspace::Event::didUnmount:
        m_settings.refreshFolderAccess();
        m_session->fileWatcher().scanNow();
        updateFolderState();
        break;
    case Workspace::Event::compositingChanged:
        m_surfaces->compositingChanged();
        break;
    case Workspace::Event::willSleep:
        break;
    }
}

void ShelfController::scheduleDisplayReconciliation() {
    if (!m_displayReconcileWork.isPending())
        m_displayReconcileWork =
            m_services.scheduler.schedule(displaySettling, [this] { reconcileDisplayWindows(); });
}

void ShelfController::reconcileDisplayWindows() {
    m_surfaces->reconcileDisplayWindows(m_settings.state().displayPreference);
    fitPanel();
    // An open shelf that came here from another display waits for the pointer to follow.
    if (!m_expanded)
        m_hover.requestPointerEvaluation();
}

void ShelfController::refreshTimeline() {
    render();
    scheduleTimelineRefresh();
}

// At midnight today's captures become yesterday's.
void ShelfController::scheduleTimelineRefresh() {
    const auto now = std::chrono::floor<std::chrono::milliseconds>(m_services.now().time_since_epoch());
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(now.count());
    const QDateTime midnight = local.date().addDays(1).startOfDay();
    const std::chrono::milliseconds delay(local.msecsTo(midnight));
    m_timelineRefreshWork = m_services.scheduler.schedule(
        delay, [this] { refreshTimeline(); }, 1s);
}

} // namespace tembra
