#pragma once

#include "settings/DisplayPreference.h"
#include "shelf/ShelfDisplay.h"
#include "shelf/ShelfDisplaySelection.h"
#include "shelf/ShelfDisplayWindow.h"
#include "shelf/ShelfServices.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace tembra {

// The windows of the shelf, one on each display that the preference admits, of which one shows the content. Main
// thread; owned by ShelfController.
class ShelfSurfaces {
public:
    // `content` moves between the windows and must outlive this.
    ShelfSurfaces(const ShelfServices &services, QWidget &content);
    ~ShelfSurfaces();
    ShelfSurfaces(const ShelfSurfaces &) = delete;
    ShelfSurfaces &operator=(const ShelfSurfaces &) = delete;

    // The pointer crossed a boundary of a window or of its hot zone.
    std::function<void()> onPointerActivity;
    std::function<void()> onActivationPressed;
    // A closing motion has ended.
    std::function<void()> onCollapsed;

    // Brings the windows in step with the displays. When the active one's display has gone, its place and what it
    // presents go to a remaining one.
    void reconcileDisplayWindows(DisplayPreference preference);
    void removeAll();

    // Chooses the display by the pointer and brings the content there; nothing when there is no display.
    bool activateForOpening(DisplayPreference preference, ScreenPoint pointer);
    // On the active surface; without one nothing happens.
    void present(const ShelfPresentation &presentation);

    [[nodiscard]] ShelfDisplayWindow *active() const { return m_active; }
    [[nodiscard]] std::vector<ScreenRect> activationNotches() const;
    [[nodiscard]] std::optional<ShelfDisplay> displayForOpening(DisplayPreference preference,
                                                                ScreenPoint pointer) const;

private:
    void add(const ShelfDisplay &display);
    void transferContent(ShelfDisplayWindow *window);

    ShelfServices m_services;
    QWidget &m_content;
    ShelfDisplaySelection m_selection;
    std::map<std::uint32_t, std::unique_ptr<ShelfDisplayWindow>> m_windows;
    ShelfDisplayWindow *m_active = nullptr;
    ShelfPresentation m_presentation;
};

} // namespace tembra
