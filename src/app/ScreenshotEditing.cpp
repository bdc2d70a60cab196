#include "app/ScreenshotEditing.h"

#include "app/MainMenu.h"
#include "screenshots/CaptureMedia.h"
#include "session/ShelfSession.h"
#include "shelf/ShelfController.h"

#include <QMenu>

namespace tembra {

ScreenshotEditing::ScreenshotEditing(const ScreenshotEditorServices &services, ShelfController &shelf,
                                     MainMenu &menu, std::function<void()> terminate)
    : m_shelf(shelf), m_editor(services, hooks(services.documents.store, menu, std::move(terminate))) {
    m_shelf.onOpenInEditor = [this](const Shot &shot, const ScreenRect &display) {
        m_editor.open(shot, display);
    };
    m_shelf.onShotsChanged = [this] { m_editor.shotsChanged(); };
}

ScreenshotEditing::~ScreenshotEditing() {
    m_shelf.onOpenInEditor = {};
    m_shelf.onShotsChanged = {};
}

ScreenshotEditorWindowController::Hooks
ScreenshotEditing::hooks(const ScreenshotEditStore &store, MainMenu &menu, std::function<void()> terminate) {
    ShelfSession &session = m_shelf.session();
    return {.documents = {.beginSave = [&session](const Shot &shot) { session.beginEditorSave(shot); },
                          .finishWrite = [&session](const auto &path) { session.finishEditorWrite(path); },
                          .trash =
                              [&session](const QString &path, const ScreenshotFileIdentity &identity) {
                                  return session.removeScreenshotFromEditor(path, identity);
                              }},
            .shots =
                [this] {
                    std::vector<Shot> shots = m_shelf.shots();
                    std::erase_if(shots,
                                  [](const Shot &shot) { return !CaptureMedia::isEditable(shot.location); });
                    return shots;
                },
            .isEdited =
                [&store](const Shot &shot) {
                    const auto badge = store.badges().constFind(shot.identity);
                    return badge != store.badges().cend() && shot.hasRevision(*badge);
                },
            .openChanged =
                [this, &session](bool isOpen) {
                    session.editorIsOpen = isOpen;
                    if (!isOpen && onClosed)
                        onClosed();
                },
            .addMenus =
                [&menu](QWidget &window) {
                    for (const QMenu *one : menu.menus())
                        window.addActions(one->actions());
                },
            .mayTerminate = std::move(terminate)};
}

} // namespace tembra
