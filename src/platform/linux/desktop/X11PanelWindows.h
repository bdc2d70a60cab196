#pragma once

#include "platform/linux/desktop/QtPanelWindows.h"
#include "platform/linux/desktop/X11Connection.h"
#include "platform/linux/desktop/X11Stacking.h"

namespace tembra {

// Panels outside of window management, kept on top of the windows in it.
class X11PanelWindows final : public PanelWindows {
public:
    X11PanelWindows(std::shared_ptr<X11Connection> connection, std::shared_ptr<X11Stacking> stacking);

    void prepare(QWidget &panel) override;
    [[nodiscard]] bool isShown(const QWidget &panel) const override;
    void setInputRegion(QWidget &panel, const QRegion &region) override;
    void takeKeyboardFocus(QWidget &panel) override;
    void returnKeyboardFocus(QWidget &panel) override;

private:
    [[nodiscard]] xcb_window_t focusedWindow() const;
    // The window that the window manager holds to be the active one.
    [[nodiscard]] xcb_window_t activeWindow() const;
    // Whether the server took it: a window that is gone or hidden cannot have the keyboard.
    bool setFocus(xcb_window_t window);

    const std::shared_ptr<X11Connection> m_connection;
    const std::shared_ptr<X11Stacking> m_stacking;
    const xcb_atom_t m_activeWindowAtom;
    xcb_window_t m_previousFocus = XCB_WINDOW_NONE;
};

} // namespace tembra
