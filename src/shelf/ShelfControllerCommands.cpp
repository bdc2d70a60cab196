// What keys and menus do.

#include "controls/SpokenNotice.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ClipboardShelf.h"
#include "shelf/ScreenshotCommands.h"
#include "shelf/ScreenshotMenu.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfController.h"
#include "shelf/ShelfSurfaces.h"
#include "shelf/StatusMenu.h"

#include <QMenu>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace tembra {

namespace {

// Long enough to see what has gone and to move the pointer there.
constexpr std::chrono::seconds undoOfferDuration{10};

} // namespace

bool ShelfController::handleShelfKey(const QKeyEvent &event) {
    const auto command = shelfCommand(event);
    if (!command || !m_expanded || !m_content)
        return false;
    if (*command == ShelfCommand::nextTab || *command == ShelfCommand::previousTab) {
        perform(*command);
        return true;
    }
    // A button that has the keyboard is pressed by Space.
    if (*command == ShelfCommand::preview && m_content->isButtonFocused())
        return false;
    if (m_activeTab == ShelfTab::imageToText)
        return handleRecognitionKey(*command);
    // What is not seen is not acted on.
    const bool actsOnSelection =
        *command != ShelfCommand::undo && *command != ShelfCommand::redo && *command != ShelfCommand::paste;
    if (actsOnSelection && m_activeTab == ShelfTab::screenshots &&
        m_folderState != ScreenshotFolderState::ready)
        return false;
    perform(*command);
    return true;
}

void ShelfController::perform(ShelfCommand command) {
    const bool isTray = m_activeTab == ShelfTab::fileTray;
    ClipboardShelf &tray = content().tray();
    switch (command) {
    case ShelfCommand::undo:
        return undo();
    case ShelfCommand::redo:
        return redo();
    case ShelfCommand::copy:
        return isTray ? tray.copySelected() : m_commands->copySelectedScreenshots();
    case ShelfCommand::paste:
        return pasteIntoTray();
    case ShelfCommand::pin:
        return isTray ? void() : m_commands->toggleSelectedScreenshotPins();
    case ShelfCommand::reveal:
        return isTray ? tray.revealSelected() : m_commands->revealSelectedScreenshots();
    case ShelfCommand::recognize:
        return isTray ? void() : m_commands->recognizeSelectedScreenshot();
    case ShelfCommand::remove:
        return isTray ? tray.removeSelected() : m_commands->trashSelected();
    case ShelfCommand::preview:
        return togglePreview();
    case ShelfCommand::nextTab:
        return stepTab(1);
    case ShelfCommand::previousTab:
        return stepTab(-1);
    }
}

// Round and round; the keyboard goes along.
void ShelfController::stepTab(int steps) {
    const std::vector<ShelfTab> shown = tabs();
    const auto active = std::ranges::find(shown, m_activeTab);
    const auto count = std::ssize(shown);
    if (active == shown.end() || count < 2)
        return;
    const auto target = (active - shown.begin() + steps + count) % count;
    activateTab(shown[static_cast<std::size_t>(target)]);
    content().takeFocus();
}

// What is pasted anywhere in the shelf is kept in the tray.
void ShelfController::pasteIntoTray() {
    if (activateTab(ShelfTab::fileTray))
        content().tray().paste();
}

Result<void> ShelfController::addToTray(const QStringList &paths) {
    ClipboardStore &tray = m_session->clipboard;
    const auto refused = [](const QString &why) {
        return failure({QStringLiteral("Tembra.FileTray"), 1, why, {}});
    };
    if (!tray.canReceive())
        return refused(tr("The file tray is switched off."));
    tray.add(tray.importGeneration(), paths);
    if (tray.status())
        return refused(*tray.status());
    return {};
}

void ShelfController::trayChanged() {
    m_isStale = true;
    if (!m_expanded || m_activeTab != ShelfTab::fileTray)
        return;
    content().tray().refresh();
    updatePreview();
}

void ShelfController::undo() {
    m_undoOffer.cancel();
    m_announcer.dismiss();
    const QStringList undoable = m_session->screenshotUndoManager.undoNames();
    m_session->undo();
    if (m_content && !undoable.isEmpty())
        SpokenNotice::say(*m_content, tr("Undone: %1").arg(undoable.first()));
}

void ShelfController::offerUndo() {
    m_undoOffer = m_services.scheduler.schedule(undoOfferDuration, [this] { render(); });
}

void ShelfController::removalBegins() {
    offerUndo();
    if (!m_expanded && m_settings.state().screenshotNotifications)
        m_announcer.announceRemoval(tr("Screenshots moved to Trash"));
}

void ShelfController::redo() {
    m_session->redo();
}

void ShelfController::revealFolder() {
    if (const auto &folder = m_settings.state().screenshotsFolder)
        m_commands->openFolder(*folder);
    else
        chooseFolder();
}

void ShelfController::clearScreenshots() {
    QSet<ScreenshotFileIdentity> asked;
    for (const Shot &shot : m_commands->removableShots())
        asked.insert(shot.identity);
    if (asked.isEmpty())
        return;
    // The panel is above every other window, also above the question.
    collapse();
    const auto count = static_cast<int>(asked.size());
    askForClearing(count, static_cast<int>(m_session->folderShelf().shots.size()) - count, [this, asked] {
        std::vector<Shot> left = m_commands->removableShots();
        // What was captured since was not asked about.
        std::erase_if(left, [&asked](const Shot &shot) { return !asked.contains(shot.identity); });
        m_session->removeScreenshots(left);
    });
}

// The drag needs the window it began in until it ends.
void ShelfController::dragSelected() {
    m_dragging = true;
    content().dragSelected();
    m_dragging = false;
    m_hover.requestPointerEvaluation();
}

void ShelfController::showScreenshotBackgroundMenu(QPoint globalPosition) {
    ScreenshotBackgroundMenuActions actions{.openFolder = [this] { revealFolder(); },
                                            .showSettings = [this] { showScreenshotSettings(); }};
    if (!m_commands->removableShots().empty())
        actions.clear = [this] { clearScreenshots(); };
    showMenu(screenshotBackgroundMenu(actions), globalPosition);
}

StatusMenuActions ShelfController::statusMenuActions() {
    return {.open = [this] { openManually(); },
            .showSettings = [this] { showSettings(); },
            .checkForUpdates = onCheckForUpdates,
            .canCheckForUpdates = canCheckForUpdates,
            .openFolder = [this] { revealFolder(); },
            .openCapture = [this] { openCapture(); },
            .quit = onQuit};
}

// The panel is above every other window, also above that of the settings.
void ShelfController::showSettings() {
    collapse();
    if (onShowSettings)
        onShowSettings();
}

void ShelfController::showScreenshotSettings() {
    collapse();
    if (onShowScreenshotSettings)
        onShowScreenshotSettings();
}

void ShelfController::installActiveStatusMenu() {
    m_statusItem = std::make_unique<StatusItem>(statusMenuActions());
}

void ShelfController::validateStatusMenu() {
    if (m_statusItem)
        m_statusItem->validate();
}

void ShelfController::showMenu(std::unique_ptr<QMenu> menu, QPoint globalPosition) {
    m_menu = std::move(menu);
    m_menu->popup(globalPosition);
}

void ShelfController::cancel() {
    if (!m_preview.isOpen())
        return collapse();
    m_preview.close();
    m_hover.requestPointerEvaluation();
}

void ShelfController::togglePreview() {
    if (m_preview.isOpen())
        return cancel();
    m_preview.show(content().selectedPaths(), previewArea());
}

void ShelfController::updatePreview() {
    if (m_preview.isOpen())
        m_preview.show(content().selectedPaths(), previewArea());
}

// Below the shelf, as far as the display goes.
QRectF ShelfController::previewArea() const {
    constexpr double margin = 24;
    const ShelfDisplayWindow *active = m_surfaces->active();
    if (!active)
        return {};
    const ScreenRect &screen = active->display().screenFrame;
    const QRectF display(screen.x, screen.y, screen.width, screen.height);
    return display.adjusted(margin, targetPanelHeight() + margin, -margin, -margin);
}

} // namespace tembra
