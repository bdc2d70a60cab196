// What keys and menus do to the selected screenshots.

#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfController.h"

#include <algorithm>
#include <iterator>

namespace tembra {

bool ShelfController::handleShelfKey(const QKeyEvent &event) {
    const auto command = shelfCommand(event);
    if (!command || !m_expanded || m_activeTab != ShelfTab::screenshots || !m_content)
        return false;
    // What is not seen is not acted on.
    const bool needsSelection = *command != ShelfCommand::undo && *command != ShelfCommand::redo;
    if (needsSelection && m_folderState != ScreenshotFolderState::ready)
        return false;
    perform(*command);
    return true;
}

void ShelfController::perform(ShelfCommand command) {
    switch (command) {
    case ShelfCommand::undo:
        return undo();
    case ShelfCommand::redo:
        return redo();
    case ShelfCommand::copy:
        return copySelectedScreenshots();
    case ShelfCommand::pin:
        return toggleSelectedScreenshotPins();
    case ShelfCommand::reveal:
        return revealSelectedScreenshots();
    case ShelfCommand::remove:
        return trashSelected();
    }
}

void ShelfController::undo() {
    m_session->undo();
}

void ShelfController::redo() {
    m_session->redo();
}

void ShelfController::copySelectedScreenshots() {
    m_session->copyScreenshots(content().selectedShots());
}

// Pins them all unless all of them are pinned.
void ShelfController::toggleSelectedScreenshotPins() {
    const QStringList paths = content().selectedPaths();
    const QSet<QString> pinned = m_settings.pinnedScreenshotPaths();
    const bool pins =
        std::ranges::any_of(paths, [&pinned](const QString &path) { return !pinned.contains(path); });
    if (const auto changed = m_settings.setScreenshotsPinned(paths, pins); !changed)
        onError(tr("Couldn’t Pin Screenshots"), changed.error().message);
}

void ShelfController::revealSelectedScreenshots() {
    const QStringList paths = content().selectedPaths();
    if (paths.isEmpty())
        return;
    if (const auto revealed = m_services.workspace.reveal(paths); !revealed)
        onError(tr("Couldn’t Show in Finder"), revealed.error().message);
}

std::vector<Shot> ShelfController::removableSelectedShots() const {
    const QSet<QString> pinned = m_settings.pinnedScreenshotPaths();
    std::vector<Shot> removable;
    std::ranges::copy_if(m_content->selectedShots(), std::back_inserter(removable),
                         [&pinned](const Shot &shot) { return !pinned.contains(shot.location); });
    return removable;
}

void ShelfController::trashSelected() {
    m_session->removeScreenshots(removableSelectedShots());
}

} // namespace tembra
