// Old screenshots and recordings go to the Trash by themselves: when, which, and one after the other.

#include "base/Background.h"
#include "base/MainThread.h"
#include "screenshots/ScreenshotAutoCleanScan.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>

namespace tembra {

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(log, "tembra.autoclean", QtInfoMsg)

constexpr Scheduler::Duration shortestDelay = 10ms;
constexpr Scheduler::Duration afterRun = 1h;
constexpr Scheduler::Duration whileBusy = 30s;
constexpr Scheduler::Duration whileUnavailable = 300s;
constexpr Scheduler::Duration longTolerance = 60s;
constexpr Scheduler::Duration shortTolerance = 1s;

std::chrono::days ageLimit(ScreenshotAutoCleanPeriod period) {
    return std::chrono::days(static_cast<int>(period));
}

Error pinsUnavailable() {
    return {QStringLiteral("Tembra.AutoClean"),
            1,
            QCoreApplication::translate(
                "AutoClean", "Some pinned files couldn’t be located. Auto-clean remains unchanged."),
            {}};
}

} // namespace

// The files of one run, and those moved so far.
struct ShelfSession::AutoCleanBatch {
    std::vector<AutoCleanCandidate> candidates;
    AutoCleanRequest request;
    ScreenshotRemovalContext context;
    // Those of the shelf, which know more than the scan.
    QHash<ScreenshotFileIdentity, Shot> shots;
    std::size_t next = 0;
    std::vector<RemovedScreenshot> removed;
};

void ShelfSession::cancelAutoClean() {
    requireMainThread();
    m_autoCleanTimer.cancel();
    m_nextAutoCleanCheck.reset();
    m_autoCleanCancellation->cancel();
}

void ShelfSession::restartAutoClean() {
    requireMainThread();
    m_autoCleanCancellation->cancel();
    m_autoCleanCancellation = std::make_shared<AutoCleanCancellation>();
    m_scheduledAutoCleanPeriod = m_settings.state().screenshotAutoClean;
    m_scheduledAutoCleanFolder = m_settings.state().screenshotsFolder;
    scheduleAutoClean(Scheduler::Duration::zero());
}

void ShelfSession::scheduleAutoClean(Scheduler::Duration delay) {
    m_autoCleanTimer.cancel();
    m_nextAutoCleanCheck.reset();
    const AppSettingsState &state = m_settings.state();
    if (!isRunning || !state.hasFolderAccess || state.screenshotAutoClean == ScreenshotAutoCleanPeriod::never)
        return;
    const auto wait = std::max(delay, shortestDelay);
    m_nextAutoCleanCheck = m_services.uptime() + wait;
    m_autoCleanTimer = m_services.scheduler.schedule(
        wait, [this] { runAutoCleanCheck(m_services.now(), false); },
        delay > longTolerance ? longTolerance : shortTolerance);
}

std::optional<Scheduler::Duration> ShelfSession::timeToAutoCleanCheck() const {
    if (!m_autoCleanTimer.isPending() || !m_nextAutoCleanCheck)
        return std::nullopt;
    return std::max(*m_nextAutoCleanCheck - m_services.uptime(), Scheduler::Duration::zero());
}

void ShelfSession::runAutoCleanCheck(Instant now, bool allowSettings) {
    requireMainThread();
    const AppSettingsState &state = m_settings.state();
    if (!state.hasFolderAccess || state.screenshotAutoClean == ScreenshotAutoCleanPeriod::never ||
        !state.screenshotsFolder)
        return;
    if (autoCleanReview() != AutoCleanReview::reviewed)
        return reviewAutoCleanAfterUpdate();
    if (m_autoCleanProcessing || isHeldByUser(allowSettings))
        return scheduleAutoClean(whileBusy);
    m_settings.refreshUnresolvedPins();
    if (m_settings.unavailablePinCount() > 0) {
        qCInfo(log, "Auto-clean deferred: unresolved pins (%d)", m_settings.unavailablePinCount());
        return scheduleAutoClean(whileUnavailable);
    }
    startAutoCleanRun(now);
}

bool ShelfSession::isHeldByUser(bool allowSettings) const {
    return editorIsOpen || isEditorSaving() || isBusy(allowSettings);
}

AutoCleanRequest ShelfSession::autoCleanRequest(ScreenshotAutoCleanPeriod period, const QString &folder,
                                                Instant now) {
    return {.root = folder,
            .includesSubfolders = m_services.folderTraversal(folder),
            .cutoff = now - ageLimit(period),
            .now = now,
            .pinnedPaths = m_settings.pinnedScreenshotPaths(),
            .pinnedFiles = m_settings.pinnedScreenshotFiles(),
            .gracePaths = m_settings.autoCleanGraceDates(now),
            .graceFiles = m_settings.autoCleanGraceFiles(now),
            .cancellation = m_autoCleanCancellation};
}

void ShelfSession::startAutoCleanRun(Instant now) {
    const AppSettingsState &state = m_settings.state();
    m_autoCleanProcessing = true;
    m_autoCleanFailureCount = 0;
    const AutoCleanRequest request =
        autoCleanRequest(state.screenshotAutoClean, *state.screenshotsFolder, now);
    performInBackground(
        m_services.autoCleanQueue, m_services.scheduler, m_life.ticket(),
        [scan = m_services.autoCleanScan, request] { return scan->candidates(request); },
        [this, request](const Result<std::vector<AutoCleanCandidate>> &candidates) {
            consumeAutoClean(candidates, request);
        });
}

void ShelfSession::consumeAutoClean(const Result<std::vector<AutoCleanCandidate>> &candidates,
                                    const AutoCleanRequest &request) {
    if (!candidates)
        qCInfo(log, "%s cannot be looked through: %s", qUtf8Printable(request.root),
               qUtf8Printable(candidates.error().message));
    const auto batch = std::make_shared<AutoCleanBatch>(AutoCleanBatch{
        candidates.value_or(std::vector<AutoCleanCandidate>()), request, screenshotRemovalContext()});
    if (batch->candidates.empty() || request.cancellation->isCancelled())
        return finishAutoCleanRun(*batch);
    for (const Shot &shot : folderShelf().shots)
        batch->shots.insert(shot.identity, shot);
    const auto step = [this, batch] {
        if (batch->request.cancellation->isCancelled())
            return false;
        cleanCandidate(*batch, batch->candidates[batch->next++]);
        return batch->next < batch->candidates.size();
    };
    runBatch(step, [this, batch] { finishAutoCleanRun(*batch); });
}

void ShelfSession::cleanCandidate(AutoCleanBatch &batch, const AutoCleanCandidate &candidate) {
    const auto facts = m_services.files.facts(candidate.path);
    const bool isStillIt = facts && folderShelf().url == batch.request.root &&
                           ScreenshotFileIdentity::of(candidate.path, *facts) == candidate.identity &&
                           ScreenshotAutoCleanScan::isOldEnough(*facts, batch.request) &&
                           m_services.isCapture(candidate.path) &&
                           ScreenshotAutoCleanScan::isSafeDescendant(candidate.path, batch.request.root,
                                                                     batch.request.includesSubfolders);
    if (!isStillIt)
        return;
    const Shot scanned{
        .location = candidate.path, .identity = candidate.identity, .createdAt = candidate.createdAt};
    auto moved = trashScreenshot(batch.shots.value(candidate.identity, scanned), true);
    if (!moved)
        ++m_autoCleanFailureCount;
    else if (*moved)
        batch.removed.push_back(**std::move(moved));
}

void ShelfSession::finishAutoCleanRun(const AutoCleanBatch &batch) {
    finishScreenshotRemoval(batch.removed, batch.context, true, true, Phase::doing);
    m_autoCleanProcessing = false;
    if (m_autoCleanFailureCount > 0)
        qCInfo(log, "Auto-clean completed with failures: %d", m_autoCleanFailureCount);
    if (!batch.request.cancellation->isCancelled())
        scheduleAutoClean(isHeldByUser(false) ? whileBusy : afterRun);
}

void ShelfSession::previewAutoClean(ScreenshotAutoCleanPeriod period,
                                    std::function<void(Result<int>)> completion) {
    requireMainThread();
    const auto &folder = m_settings.state().screenshotsFolder;
    if (period == ScreenshotAutoCleanPeriod::never || !folder)
        return completion(0);
    m_settings.refreshUnresolvedPins();
    if (m_settings.unavailablePinCount() > 0)
        return completion(failure(pinsUnavailable()));
    AutoCleanRequest request = autoCleanRequest(period, *folder, m_services.now());
    request.cancellation = m_previewCancellation;
    performInBackground(
        m_services.autoCleanQueue, m_services.scheduler, m_life.ticket(),
        [scan = m_services.autoCleanScan, request] { return scan->candidates(request); },
        [completion = std::move(completion)](const Result<std::vector<AutoCleanCandidate>> &found) {
            completion(found.map(
                [](const std::vector<AutoCleanCandidate> &files) { return static_cast<int>(files.size()); }));
        });
}

} // namespace tembra
