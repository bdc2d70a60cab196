// What the shelf tells scripts of itself.

#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ScreenshotCommands.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfController.h"
#include "shelf/ShelfSurfaces.h"
#include "shortcut/ShortcutTitle.h"
#include "tray/ClipboardStore.h"

namespace tembra {

namespace {

QString phaseName(const OCRState &state) {
    static const QStringList names{QStringLiteral("idle"), QStringLiteral("loading"),
                                   QStringLiteral("result"), QStringLiteral("error")};
    return names.at(static_cast<qsizetype>(state.phase.index()));
}

// The text, or why there is none.
QString shownText(const OCRState &state) {
    const auto *const error = std::get_if<OCRState::Error>(&state.phase);
    return error ? error->message : state.result();
}

} // namespace

ShelfStatus ShelfController::status() const {
    ShelfStatus status;
    const FolderShelf &shelf = m_session->folderShelf();
    status.expanded = m_expanded;
    status.tab = m_activeTab;
    if (!m_surfaces)
        return status;
    if (const ShelfDisplayWindow *active = m_surfaces->active()) {
        status.display = m_expanded ? active->display().name : QString();
        status.frame = active->visiblePanel();
    }
    status.folder = m_settings.state().screenshotsFolder;
    status.folderState = m_folderState.value_or(ScreenshotFolderState::none);
    status.screenshotCount = static_cast<int>(shelf.shots.size());
    for (const ScreenshotSection &section : m_commands->sections()) {
        status.sections.push_back({title(section.kind), static_cast<int>(section.shots.size())});
        if (section.kind == ScreenshotSectionKind::pinned)
            status.pinnedCount = static_cast<int>(section.shots.size());
        for (const Shot &shot : section.shots)
            status.screenshots += shot.location;
    }
    status.selected = m_content ? m_content->selectedPaths() : QStringList();
    if (const auto &showing = m_announcer.showing()) {
        status.showingNotification = true;
        status.notificationText = showing->text;
        status.notificationDetail = showing->detail();
        status.notificationCount = showing->captureCount;
    }
    status.isShortcutEnabled = m_settings.state().shortcutEnabled;
    status.shortcutTitle = title(m_settings.state().activationShortcut);
    status.shortcutError = m_shortcut.error();
    status.recognitionPhase = phaseName(m_ocr.state());
    status.recognitionText = shownText(m_ocr.state());
    status.isRecognitionExpanded = m_ocr.state().isExpanded;
    status.lastCapture = m_lastCapture;
    status.autoCleanDays = static_cast<int>(m_settings.state().screenshotAutoClean);
    status.autoCleanReview = static_cast<int>(m_session->autoCleanReview());
    status.nextAutoCleanCheck = m_session->timeToAutoCleanCheck();
    status.undo = m_session->screenshotUndoManager.undoNames();
    status.redo = m_session->screenshotUndoManager.redoNames();
    for (const ClipboardEntry &entry : m_session->clipboard.entries())
        status.tray.push_back({entry.lastKnownPath, entry.available});
    status.trayStatus = m_session->clipboard.status().value_or(QString());
    return status;
}

} // namespace tembra
