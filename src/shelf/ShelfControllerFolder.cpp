// The screenshots folder: where it is, what its state means, and how the user chooses another.

#include "screenshots/ScreenshotLocationMonitor.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "settings/FolderPath.h"
#include "shelf/FolderNotification.h"
#include "shelf/ShelfController.h"

namespace tembra {

namespace {

// What is loaded sooner needs no sign of being loaded.
constexpr std::chrono::milliseconds loadingPatience{300};

} // namespace

void ShelfController::receiveFolderChange(const FolderShelf &shelf) {
    // A folder that was renamed or moved is found again by its bookmark.
    if (shelf.errorText) {
        m_settings.refreshFolderAccess();
    } else if (m_folderState == ScreenshotFolderState::missing) {
        // It may be another folder at the old place, and some tools save elsewhere while theirs is away.
        m_settings.refreshFolderAccess();
        rereadDestination();
    }
    updateFolderState();
    shotsChanged();
}

// What was read, or is being read, may still be the old place.
void ShelfController::rereadDestination() {
    m_destination.reset();
    m_locationMonitor->raiseGeneration();
    m_locationMonitor->check();
}

void ShelfController::receiveDestination(const ScreenshotDestination &destination) {
    const bool isNew = m_destination != destination;
    m_destination = destination;
    if (onDestinationRead)
        onDestinationRead(destination);
    // It is read again at each opening.
    if (isNew)
        updateFolderState();
}

ScreenshotFolderFacts ShelfController::folderFacts() const {
    const FolderShelf &shelf = m_session->folderShelf();
    ScreenshotFolderFacts facts{.folder = m_settings.state().screenshotsFolder,
                                .unavailable = shelf.errorText.has_value() || m_settings.isFolderAccessLost(),
                                .destination = m_destination,
                                .hasCompletedInitialScan = shelf.hasCompletedInitialScan};
    if (facts.folder && facts.destination && isSameFolder(facts.destination->folder, *facts.folder))
        facts.destination->folder = *facts.folder;
    return facts;
}

void ShelfController::updateFolderState() {
    const ScreenshotFolderState state = screenshotFolderState(folderFacts());
    const auto notification = folderNotification(m_folderState, state);
    if (state != m_folderState)
        m_announcer.forgetFolder();
    if (state != m_folderState && state == ScreenshotFolderState::loading)
        m_loadingIndicatorWork = m_services.scheduler.schedule(loadingPatience, [this] { render(); });
    m_folderState = state;
    render();
    if (notification && m_settings.state().screenshotNotifications)
        m_announcer.announceFolder(*notification);
}

QString ShelfController::suggestedScreenshotFolder() const {
    if (m_destination && m_destination->kind == ScreenshotDestination::Kind::folder)
        return m_destination->folder;
    return m_settings.state().screenshotsFolder.value_or(QString());
}

void ShelfController::checkDestination() {
    m_locationMonitor->check();
}

void ShelfController::suspendFolder() {
    m_session->fileWatcher().pause();
}

void ShelfController::resumeFolder() {
    m_session->rereadFolder();
    m_session->fileWatcher().resume();
}

std::optional<QString> ShelfController::pickFolder() {
    if (m_choosingFolder)
        return std::nullopt;
    m_choosingFolder = true;
    // The panel is above every other window, also above the dialog.
    collapse();
    std::optional<QString> chosen = askForFolder(suggestedScreenshotFolder());
    m_choosingFolder = false;
    return chosen;
}

void ShelfController::chooseFolder() {
    const std::optional<QString> chosen = pickFolder();
    if (!chosen)
        return;
    if (const auto accepted = acceptScreenshotFolder(*chosen, false); !accepted)
        return onError(accepted.error().message, accepted.error().recoverySuggestion);
    openManually();
}

Result<void> ShelfController::acceptScreenshotFolder(const QString &folder, bool adopting) {
    auto granted = m_settings.grantScreenshotsFolder(folder, !adopting, false);
    if (granted)
        folderChanged();
    return granted;
}

Result<void> ShelfController::changeScreenshotFolder(const QString &folder) {
    auto granted = m_settings.grantScreenshotsFolder(folder, true, true);
    if (granted)
        folderChanged();
    return granted;
}

void ShelfController::folderChanged() {
    rereadDestination();
    refreshWatchers();
    updateFolderState();
}

} // namespace tembra
