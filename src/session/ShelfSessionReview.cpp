// Before auto-clean moves anything for the first time the user is told how much that is, and may switch it
// off.

#include "base/MainThread.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "settings/SettingsKeys.h"

#include <utility>

namespace tembra {

using namespace std::chrono_literals;

namespace {

constexpr Scheduler::Duration later = 300s;
constexpr Scheduler::Duration muchLater = 1h;

} // namespace

AutoCleanReview ShelfSession::autoCleanReview() const {
    switch (m_services.defaults.integer(settingsKey::autoCleanSafetyReview).value_or(0)) {
    case 1:
        return AutoCleanReview::shown;
    case 2:
        return AutoCleanReview::reviewed;
    default:
        return AutoCleanReview::notReviewed;
    }
}

void ShelfSession::setAutoCleanReview(AutoCleanReview review) {
    m_services.defaults.setInteger(settingsKey::autoCleanSafetyReview, static_cast<int>(review));
}

bool ShelfSession::isAutoCleanFor(ScreenshotAutoCleanPeriod period,
                                  const std::optional<QString> &folder) const {
    const AppSettingsState &state = m_settings.state();
    return state.screenshotAutoClean == period && state.screenshotsFolder == folder;
}

void ShelfSession::reviewAutoCleanAfterUpdate() {
    if (m_autoCleanReviewInProgress || m_autoCleanReviewPresented)
        return;
    m_autoCleanReviewInProgress = true;
    const auto period = m_settings.state().screenshotAutoClean;
    const auto folder = m_settings.state().screenshotsFolder;
    previewAutoClean(period, [this, period, folder](const Result<int> &count) {
        m_autoCleanReviewInProgress = false;
        const bool isWanted =
            isRunning && !m_autoCleanReviewPresented && autoCleanReview() != AutoCleanReview::reviewed;
        if (!isWanted)
            return;
        if (isAutoCleanFor(period, folder))
            return reviewCounted(count, period, folder);
        // A check of what holds now has found this one under way.
        scheduleAutoClean(Scheduler::Duration::zero());
    });
}

void ShelfSession::reviewCounted(const Result<int> &count, ScreenshotAutoCleanPeriod period,
                                 const std::optional<QString> &folder) {
    if (!count)
        return scheduleAutoClean(later);
    if (*count == 0) {
        if (autoCleanReview() == AutoCleanReview::shown)
            return scheduleAutoClean(muchLater);
        setAutoCleanReview(AutoCleanReview::reviewed);
        return scheduleAutoClean(Scheduler::Duration::zero());
    }
    setAutoCleanReview(AutoCleanReview::shown);
    if (!onSafetyReview)
        return scheduleAutoClean(later);
    m_autoCleanReviewPresented = true;
    const auto ticket = m_life.ticket();
    onSafetyReview(*count, period, [this, ticket, period, folder](bool keeps) {
        if (ticket.isCurrent())
            reviewDecided(keeps, period, folder);
    });
}

void ShelfSession::reviewDecided(bool keeps, ScreenshotAutoCleanPeriod period,
                                 const std::optional<QString> &folder) {
    m_autoCleanReviewPresented = false;
    // Asked about something else: a later check asks again.
    if (!isAutoCleanFor(period, folder))
        return scheduleAutoClean(Scheduler::Duration::zero());
    if (!keeps) {
        m_settings.setScreenshotAutoClean(ScreenshotAutoCleanPeriod::never);
        return restartAutoClean();
    }
    enableAutoClean(period);
}

void ShelfSession::enableAutoClean(ScreenshotAutoCleanPeriod period) {
    requireMainThread();
    setAutoCleanReview(AutoCleanReview::reviewed);
    m_settings.setScreenshotAutoClean(period);
    restartAutoClean();
    runAutoCleanCheck(m_services.now(), true);
}

} // namespace tembra
