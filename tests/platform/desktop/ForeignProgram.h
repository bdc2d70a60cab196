#pragma once

#include <QByteArray>
#include <QPoint>
#include <QRect>
#include <QString>

#include <xcb/xcb.h>

#include <memory>
#include <vector>

namespace tembra {

// Another program on the same X server, and the hand that moves the mouse. Main thread.
class ForeignProgram {
public:
    ForeignProgram();
    ~ForeignProgram();
    ForeignProgram(const ForeignProgram &) = delete;
    ForeignProgram &operator=(const ForeignProgram &) = delete;

    // A window without decorations that the window manager looks after; waits until it is active.
    xcb_window_t openWindow(const QRect &rect);
    // A window outside of window management, as menus are.
    xcb_window_t openMenu(const QRect &rect);
    // Raises the window and gives it the keyboard, as a taskbar does; waits until that is done.
    void activate(xcb_window_t window);

    // Gives the keyboard to the window past the window manager.
    void takeKeyboard(xcb_window_t window);

    void movePointer(QPoint position);
    void press(int button = 1);
    void release(int button = 1);
    void click(QPoint position, int button = 1);
    void typeKey(char key);
    void holdKey(std::uint8_t keycode);
    void releaseKey(std::uint8_t keycode);
    // Takes a key with exactly those modifiers for itself; false where another program has it.
    bool grabKey(std::uint8_t keycode, std::uint16_t modifiers);
    void ungrabKey(std::uint8_t keycode, std::uint16_t modifiers);
    // What the first buttons of the mouse mean.
    void setButtonOrder(const std::vector<std::uint8_t> &order);
    // Presses that arrived in its own windows so far.
    [[nodiscard]] int pressCount();

    void takeSelection(const char *name);
    void dropSelection(const char *name);
    void showDesktop(std::uint32_t index);
    [[nodiscard]] std::uint32_t desktop();
    [[nodiscard]] xcb_window_t focusedWindow();
    // The windows on the screen, those in frames too, the lowest first; and whether one is above the other.
    [[nodiscard]] bool isAbove(xcb_window_t upper, xcb_window_t lower);

private:
    [[nodiscard]] xcb_window_t createWindow(const QRect &rect, bool isMenu);
    [[nodiscard]] xcb_atom_t atom(const char *name);
    [[nodiscard]] std::vector<std::uint32_t> property(xcb_window_t window, const char *name);
    [[nodiscard]] xcb_window_t topLevel(xcb_window_t window);
    void askWindowManager(xcb_window_t window, const char *message, std::uint32_t first,
                          std::uint32_t second);
    void fake(std::uint8_t type, std::uint8_t detail, QPoint position = {});
    // Waits until it has dealt with all that it was asked for.
    void finishWindowManagement();
    void setSelection(const char *name, xcb_window_t owner);

    xcb_connection_t *const m_xcb;
    const xcb_window_t m_root;
    std::vector<xcb_window_t> m_windows;
    const xcb_window_t m_messenger;
    int m_pressCount = 0;
};

} // namespace tembra
