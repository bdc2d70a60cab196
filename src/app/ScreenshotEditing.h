#pragma once

#include "editor/window/ScreenshotEditorServices.h"
#include "editor/window/ScreenshotEditorWindowController.h"

#include <functional>

namespace tembra {

class MainMenu;
class ShelfController;

// Joins the editor to the shelf whose screenshots it opens. Main thread; owned by AppDelegate.
class ScreenshotEditing {
public:
    // All must outlive this. `terminate` ends the program if it may end.
    ScreenshotEditing(const ScreenshotEditorServices &services, ShelfController &shelf, MainMenu &menu,
                      std::function<void()> terminate);
    ~ScreenshotEditing();
    ScreenshotEditing(const ScreenshotEditing &) = delete;
    ScreenshotEditing &operator=(const ScreenshotEditing &) = delete;

    // The last window has been closed.
    std::function<void()> onClosed;

    [[nodiscard]] bool canTerminate() { return m_editor.canTerminate(); }
    [[nodiscard]] EditorStatus status() const { return m_editor.status(); }

private:
    [[nodiscard]] ScreenshotEditorWindowController::Hooks
    hooks(const ScreenshotEditStore &store, MainMenu &menu, std::function<void()> terminate);

    ShelfController &m_shelf;
    ScreenshotEditorWindowController m_editor;
};

} // namespace tembra
