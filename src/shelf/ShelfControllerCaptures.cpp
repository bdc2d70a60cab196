// New captures: announced, and handed to where they go by themselves.

#include "screenshots/CaptureMedia.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfController.h"
#include "shelf/ShelfSurfaces.h"

#include <algorithm>

namespace tembra {

namespace {

constexpr QSize notificationSize{360, 84};

bool isRecording(const QString &path) {
    return !CaptureMedia::isImageExtension(CaptureMedia::extension(path));
}

} // namespace

void ShelfController::receiveNewFiles(const std::vector<Shot> &shots) {
    if (shots.empty())
        return;
    m_lastCapture = ShelfStatus::Capture{shots.front().location, shots.front().createdAt};
    const bool isFirst = !m_settings.state().hasCaughtFirstScreenshot;
    m_settings.markFirstScreenshotCaught();
    announce(shots, isFirst);
    if (onNewCaptures)
        onNewCaptures(shots);
    // The others of a series stand beside it.
    const std::vector<Shot> taken = m_screenshotAutoOpen.take(shots);
    if (!taken.empty())
        openInEditor(taken.front());
}

void ShelfController::announce(const std::vector<Shot> &shots, bool isFirst) {
    std::vector<Instant> dates;
    std::vector<CaptureNews> news;
    for (const Shot &shot : shots) {
        dates.push_back(shot.createdAt);
        news.push_back(
            {.path = shot.location, .isRecording = isRecording(shot.location), .isFirst = isFirst});
    }
    m_screenshotFeedback.recordCaptures(dates);
    if (!m_announcer.isSeriesOpen())
        m_pendingToastSelection.clear();
    for (const Shot &shot : shots)
        m_pendingToastSelection.insert(shot.identity);
    if (m_settings.state().screenshotNotifications)
        m_announcer.announceCaptures(news, m_screenshotFeedback.nextPhrase());
}

QString ShelfController::latestCapture() const {
    if (m_lastCapture)
        return m_lastCapture->path;
    const std::vector<Shot> &shots = m_session->folderShelf().shots;
    const auto latest = std::ranges::max_element(shots, {}, &Shot::createdAt);
    return latest == shots.end() ? QString() : latest->location;
}

void ShelfController::openCapture() {
    const QString path = latestCapture();
    if (path.isEmpty())
        return;
    if (const auto opened = m_services.workspace.open({path}, QString()); !opened)
        onError(isRecording(path) ? tr("Couldn’t Open Video") : tr("Couldn’t Open Image"),
                opened.error().message);
}

void ShelfController::openAnnounced() {
    const bool tellsOfCaptures = m_announcer.isSeriesOpen();
    if (tellsOfCaptures) {
        m_activeTab = ShelfTab::screenshots;
        m_session->selected = m_pendingToastSelection;
    }
    openManually();
    if (tellsOfCaptures)
        content().revealSelection();
}

void ShelfController::copyFinished(ScreenshotAutoCopy::Outcome outcome) {
    m_announcer.setCopyState(outcome == ScreenshotAutoCopy::Outcome::copied
                                 ? CaptureNotification::CopyState::copied
                                 : CaptureNotification::CopyState::postponed);
}

void ShelfController::showNotification(const std::optional<CaptureNotification> &notification) {
    if (!notification) {
        if (!m_expanded)
            m_surfaces->present(ShelfPresentation::collapsed());
        return;
    }
    if (!activateSurface())
        return;
    content().apply({.notification = notification});
    m_isStale = true;
    m_surfaces->present(ShelfPresentation::notification(notificationSize));
}

} // namespace tembra
