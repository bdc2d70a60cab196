// Screenshots on their way to the editor.

#include "screenshots/CaptureMedia.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ScreenshotCommands.h"
#include "shelf/ShelfController.h"
#include "shelf/ShelfSurfaces.h"

#include <algorithm>

namespace tembra {

std::vector<Shot> ShelfController::shots() const {
    std::vector<Shot> shots;
    for (const ScreenshotSection &section : m_commands->sections())
        std::ranges::copy(section.shots, std::back_inserter(shots));
    return shots;
}

void ShelfController::shotsChanged() {
    if (onShotsChanged)
        onShotsChanged();
}

void ShelfController::openInEditor(const Shot &shot) {
    if (!onOpenInEditor)
        return;
    const ScreenRect display = editorDisplay();
    // The shelf lies above every other window.
    collapse();
    onOpenInEditor(shot, display);
}

Result<void> ShelfController::openScreenshotEditor(const QString &path) {
    const std::vector<Shot> all = shots();
    const auto known = std::ranges::find(all, path, &Shot::location);
    if (known != all.end()) {
        openInEditor(*known);
        return {};
    }
    const auto facts = m_services.files.facts(path);
    if (!facts)
        return failure(facts.error());
    Shot shot;
    shot.location = path;
    shot.identity = ScreenshotFileIdentity::of(path, *facts);
    shot.createdAt = facts->createdAt.value_or(Instant());
    openInEditor(shot);
    return {};
}

void ShelfController::openSelectedScreenshotsInEditor() {
    const std::vector<Shot> selected = m_commands->selectedShots();
    const auto editable = std::ranges::find_if(
        selected, [](const Shot &shot) { return CaptureMedia::isEditable(shot.location); });
    if (editable != selected.end())
        openInEditor(*editable);
}

void ShelfController::openTile(const QString &path) {
    if (!onOpenInEditor || !CaptureMedia::isEditable(path))
        return m_commands->openFiles({path}, QString());
    if (const auto opened = openScreenshotEditor(path); !opened)
        onError(tr("Couldn’t Open Image"), opened.error().message);
}

// That which shows the shelf, else the one where it would open.
ScreenRect ShelfController::editorDisplay() const {
    if (const ShelfDisplayWindow *active = m_surfaces ? m_surfaces->active() : nullptr)
        return active->display().screenFrame;
    const std::vector<DisplayFacts> displays = m_services.displays.connected();
    return displays.empty() ? ScreenRect{0, 0, 1280, 800} : displays.front().frame;
}

} // namespace tembra
