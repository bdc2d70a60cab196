#pragma once

#include "platform/linux/desktop/WaylandRequests.h"
#include "platform/linux/desktop/XdgPopupProtocol.h"

#include <memory>

struct wl_compositor;
struct wl_display;
struct wl_output;
struct wl_pointer;
struct wl_keyboard;
struct wl_registry;
struct wl_seat;
struct wl_surface;

QT_BEGIN_NAMESPACE
class QScreen;
class QWindow;
QT_END_NAMESPACE

namespace tembra {

// The connection to the Wayland compositor that Qt has, for what Qt does not say on it. Events of the objects
// made here are told by Qt's event loop. Main thread; the application object must outlive it.
class WaylandDisplay {
public:
    // Nothing where Qt runs on something else, or the compositor has no layer shell.
    [[nodiscard]] static std::shared_ptr<WaylandDisplay> ofApplication();
    ~WaylandDisplay();
    WaylandDisplay(const WaylandDisplay &) = delete;
    WaylandDisplay &operator=(const WaylandDisplay &) = delete;

    [[nodiscard]] wl_display *connection() const { return m_display; }
    [[nodiscard]] wl_compositor *compositor() const { return m_compositor; }
    [[nodiscard]] wl_proxy *layerShell() const { return m_layerShell; }
    [[nodiscard]] wl_proxy *popups() const { return m_popups.get(); }
    // Null while there is none.
    [[nodiscard]] wl_seat *seat() const { return m_seat; }
    // Of the last button or key that was pressed over one of our windows; 0 before the first.
    [[nodiscard]] std::uint32_t pressSerial() const { return m_pressSerial; }

    // Whether the pointer is over one of our windows; Qt does not tell while a menu is open.
    [[nodiscard]] bool hasPointer() const { return m_hasPointer; }

    // Null while the window has none, and for a screen that is none of the compositor's.
    [[nodiscard]] static wl_surface *surface(QWindow &window);
    [[nodiscard]] static wl_output *output(QScreen &screen);

private:
    explicit WaylandDisplay(wl_display *display);
    void addGlobal(std::uint32_t name, const char *interface, std::uint32_t version);
    void listenToSeat();
    void listenToPointer();
    void listenToKeyboard();
    void seatChanged(std::uint32_t capabilities);

    wl_display *const m_display;
    wl_registry *m_registry = nullptr;
    wl_compositor *m_compositor = nullptr;
    wl_proxy *m_layerShell = nullptr;
    xdg_popup::Base m_popups;
    wl_seat *m_seat = nullptr;
    wl_pointer *m_pointer = nullptr;
    wl_keyboard *m_keyboard = nullptr;
    std::uint32_t m_pressSerial = 0;
    bool m_hasPointer = false;
};

} // namespace tembra
