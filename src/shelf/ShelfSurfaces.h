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

// The windows of the shelf, one on each display that the preference admits, of which one shows the content.
// Main thread; owned by ShelfController.
class ShelfSurfaces {
public:
    // `content` makes what the windows show when it is first shown; it moves between them and must outlive
    // this.
    ShelfSurfaces(const ShelfServices &services, std::function<QWidget &()> content);
    ~ShelfSurfaces();
    ShelfSurfaces(const ShelfSurfaces &) = delete;
    ShelfSurfaces &operator=(const ShelfSurfaces &) = delete;

    // The pointer crossed a boundary of a window or of its hot zone.
    std::function<void()> onPointerActivity;
    std::function<void()> onActivationPressed;
    std::function<void()> onEscape;
    std::function<bool(const QKeyEvent &)> onKey;

    // Brings the windows in step with the displays. When the active one's display has gone, what it presents
    // goes to a remaining one.
    void reconcileDisplayWindows(DisplayPreference preference);
    void removeAll();
    void compositingChanged();

    // Chooses the display by the pointer and brings the content there; false when there is no display.
    bool activateForOpening(DisplayPreference preference, ScreenPoint pointer);
    // On the active surface; without one nothing happens.
    void present(const ShelfPresentation &presentation);
    [[nodiscard]] const ShelfPresentation &presentation() const { return m_presentation; }

    [[nodiscard]] ShelfDisplayWindow *active() const { return m_active; }
    // The display of the active surface has gone, and the windows are not yet in step with that.
    [[nodiscard]] bool hasLostDisplay() const;
    [[nodiscard]] std::vector<ScreenRect> activationNotches() const;

private:
    void add(const ShelfDisplay &display);
    void removeVanished(const std::vector<ShelfDisplay> &displays);
    void transferContent(ShelfDisplayWindow &window);
    // With what is presented, and with the keyboard if it is there.
    void moveTo(ShelfDisplayWindow &window);

    ShelfServices m_services;
    const std::function<QWidget &()> m_content;
    ShelfDisplaySelection m_selection;
    std::map<std::uint32_t, std::unique_ptr<ShelfDisplayWindow>> m_windows;
    ShelfDisplayWindow *m_active = nullptr;
    ShelfPresentation m_presentation;
};

} // namespace tembra
