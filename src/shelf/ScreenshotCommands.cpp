#include "shelf/ScreenshotCommands.h"

#include "screenshots/CaptureMedia.h"
#include "screenshots/ScreenshotTimeline.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/FileOpening.h"
#include "shelf/ScreenshotMenu.h"

#include <QCoreApplication>
#include <QMenu>
#include <QTimeZone>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("ScreenshotCommands", source);
}

} // namespace

ScreenshotCommands::ScreenshotCommands(AppSettings &settings, ShelfSession &session, Workspace &workspace,
                                       WallClock now)
    : m_settings(settings), m_session(session), m_workspace(workspace), m_now(std::move(now)) {}

std::vector<ScreenshotSection> ScreenshotCommands::sections() const {
    return ScreenshotTimeline::sections(m_session.folderShelf().shots, m_settings.pinnedScreenshotPaths(),
                                        m_now(), QTimeZone::systemTimeZone());
}

std::vector<Shot> ScreenshotCommands::selectedShots() const {
    std::vector<Shot> selected;
    if (m_session.selected.isEmpty())
        return selected;
    for (const ScreenshotSection &section : sections())
        std::ranges::copy_if(section.shots, std::back_inserter(selected),
                             [this](const Shot &shot) { return m_session.selected.contains(shot.identity); });
    return selected;
}

QStringList ScreenshotCommands::selectedPaths() const {
    QStringList paths;
    for (const Shot &shot : selectedShots())
        paths += shot.location;
    return paths;
}

std::vector<Shot> ScreenshotCommands::removable(const std::vector<Shot> &shots) const {
    const QSet<QString> pinned = m_settings.pinnedScreenshotPaths();
    std::vector<Shot> removable;
    std::ranges::copy_if(shots, std::back_inserter(removable),
                         [&pinned](const Shot &shot) { return !pinned.contains(shot.location); });
    return removable;
}

std::vector<Shot> ScreenshotCommands::removableShots() const {
    return removable(m_session.folderShelf().shots);
}

std::vector<Shot> ScreenshotCommands::removableSelectedShots() const {
    return removable(selectedShots());
}

void ScreenshotCommands::copySelectedScreenshots() {
    m_session.copyScreenshots(selectedShots());
}

void ScreenshotCommands::toggleSelectedScreenshotPins() {
    const QStringList paths = selectedPaths();
    const QSet<QString> pinned = m_settings.pinnedScreenshotPaths();
    const bool pins =
        std::ranges::any_of(paths, [&pinned](const QString &path) { return !pinned.contains(path); });
    if (const auto changed = m_settings.setScreenshotsPinned(paths, pins); !changed)
        onError(text(QT_TRANSLATE_NOOP("ScreenshotCommands", "Couldn’t Pin Screenshots")),
                changed.error().message);
}

void ScreenshotCommands::revealSelectedScreenshots() {
    revealFiles(m_workspace, selectedPaths(), onError);
}

void ScreenshotCommands::openScreenshotsWith(const QString &applicationIdentifier) {
    openFiles(selectedPaths(), applicationIdentifier);
}

void ScreenshotCommands::openFiles(const QStringList &paths, const QString &applicationIdentifier) {
    tembra::openFiles(m_workspace, paths, applicationIdentifier, onError);
}

bool ScreenshotCommands::canRecognizeSelectedScreenshot(const QStringList &selected) const {
    return m_settings.state().imageToTextEnabled && selected.size() == 1 &&
           CaptureMedia::isImageExtension(CaptureMedia::extension(selected.first()));
}

void ScreenshotCommands::recognizeSelectedScreenshot() {
    const QStringList selected = selectedPaths();
    if (canRecognizeSelectedScreenshot(selected))
        onRecognize(selected.first());
}

void ScreenshotCommands::trashSelected() {
    m_session.removeScreenshots(removableSelectedShots());
}

void ScreenshotCommands::openFolder(const QString &folder) {
    if (const auto opened = m_workspace.openFolder(folder); !opened)
        onError(text(QT_TRANSLATE_NOOP("ScreenshotCommands", "Couldn’t Open Folder")),
                opened.error().message);
}

std::unique_ptr<QMenu> ScreenshotCommands::menu() {
    const QStringList paths = selectedPaths();
    const auto count = static_cast<int>(paths.size());
    const ScreenshotMenuState state{.selectedCount = count,
                                    .pinnedCount = count - static_cast<int>(removableSelectedShots().size()),
                                    .canEdit = std::ranges::any_of(paths, CaptureMedia::isEditable),
                                    .offersRecognition = m_settings.state().imageToTextEnabled,
                                    .canRecognize = canRecognizeSelectedScreenshot(paths),
                                    .applications = m_workspace.applicationsFor(paths)};
    return screenshotMenu(state, {.copy = [this] { copySelectedScreenshots(); },
                                  .openInEditor = onOpenInEditor,
                                  .openWith = [this](const QString &id) { openScreenshotsWith(id); },
                                  .recognize = [this] { recognizeSelectedScreenshot(); },
                                  .reveal = [this] { revealSelectedScreenshots(); },
                                  .togglePins = [this] { toggleSelectedScreenshotPins(); },
                                  .trash = [this] { trashSelected(); }});
}

} // namespace tembra
