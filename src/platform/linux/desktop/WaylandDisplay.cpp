#include "platform/linux/desktop/WaylandDisplay.h"

#include "platform/linux/desktop/LayerShellProtocol.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

#include <algorithm>
#include <string_view>
#include <unistd.h>
#include <wayland-client.h>

namespace tembra {

namespace {

QPlatformNativeInterface *nativeInterface() {
    const bool isWayland = QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    return isWayland ? QGuiApplication::platformNativeInterface() : nullptr;
}

// The parts of the listeners that tell nothing of interest here.
template <class... Arguments>
void ignore(void *, Arguments...) {}

} // namespace

std::shared_ptr<WaylandDisplay> WaylandDisplay::ofApplication() {
    QPlatformNativeInterface *const native = nativeInterface();
    if (!native)
        return nullptr;
    auto *const display = static_cast<wl_display *>(native->nativeResourceForIntegration("wl_display"));
    if (!display)
        return nullptr;
    const std::shared_ptr<WaylandDisplay> made(new WaylandDisplay(display));
    return made->m_compositor && made->m_layerShell && made->m_popups ? made : nullptr;
}

wl_surface *WaylandDisplay::surface(QWindow &window) {
    QPlatformNativeInterface *const native = nativeInterface();
    if (!native || !window.handle())
        return nullptr;
    return static_cast<wl_surface *>(native->nativeResourceForWindow("surface", &window));
}

wl_output *WaylandDisplay::output(QScreen &screen) {
    QPlatformNativeInterface *const native = nativeInterface();
    return native ? static_cast<wl_output *>(native->nativeResourceForScreen("output", &screen)) : nullptr;
}

WaylandDisplay::WaylandDisplay(wl_display *display) : m_display(display) {
    static const wl_registry_listener listener{
        [](void *self, wl_registry *, std::uint32_t name, const char *interface, std::uint32_t version) {
            static_cast<WaylandDisplay *>(self)->addGlobal(name, interface, version);
        },
        ignore<wl_registry *, std::uint32_t>};
    // On a queue of its own for now: Qt's events are to wait.
    wl_event_queue *const queue = wl_display_create_queue(m_display);
    auto *const wrapper = static_cast<wl_display *>(wl_proxy_create_wrapper(m_display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapper), queue);
    m_registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(m_registry, &listener, this);
    wl_display_roundtrip_queue(m_display, queue);
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(m_registry), nullptr);
    wl_event_queue_destroy(queue);
    wl_display_flush(m_display);
}

WaylandDisplay::~WaylandDisplay() {
    seatChanged(0);
    if (m_seat)
        wl_seat_destroy(m_seat);
    if (m_layerShell)
        wl_proxy_destroy(m_layerShell);
    if (m_compositor)
        wl_compositor_destroy(m_compositor);
    wl_registry_destroy(m_registry);
}

void WaylandDisplay::addGlobal(std::uint32_t name, const char *interface, std::uint32_t version) {
    const auto bind = [&](const wl_interface &type, std::uint32_t newest) {
        auto *const object =
            static_cast<wl_proxy *>(wl_registry_bind(m_registry, name, &type, std::min(version, newest)));
        wl_proxy_set_queue(object, nullptr);
        return object;
    };
    const std::string_view offered = interface;
    if (offered == wl_compositor_interface.name && !m_compositor) {
        m_compositor = reinterpret_cast<wl_compositor *>(bind(wl_compositor_interface, 1));
    } else if (offered == layer_shell::interface().name && !m_layerShell) {
        m_layerShell = bind(layer_shell::interface(), layer_shell::newestVersion);
    } else if (offered == xdg_popup::baseInterface().name && !m_popups) {
        m_popups.reset(bind(xdg_popup::baseInterface(), 1));
        static const xdg_popup::BaseListener listener{
            [](void *, wl_proxy *base, std::uint32_t serial) { xdg_popup::pong(base, serial); }};
        listenTo(m_popups.get(), listener, this);
    } else if (offered == wl_seat_interface.name && !m_seat) {
        m_seat = reinterpret_cast<wl_seat *>(bind(wl_seat_interface, 1));
        listenToSeat();
    }
}

void WaylandDisplay::listenToSeat() {
    static const wl_seat_listener listener{[](void *self, wl_seat *, std::uint32_t capabilities) {
                                               static_cast<WaylandDisplay *>(self)->seatChanged(capabilities);
                                           },
                                           ignore<wl_seat *, const char *>};
    wl_seat_add_listener(m_seat, &listener, this);
}

void WaylandDisplay::seatChanged(std::uint32_t capabilities) {
    const bool hasPointer = capabilities & WL_SEAT_CAPABILITY_POINTER;
    if (!hasPointer && m_pointer) {
        wl_pointer_destroy(std::exchange(m_pointer, nullptr));
        m_hasPointer = false;
    } else if (hasPointer && !m_pointer)
        listenToPointer();
    const bool hasKeyboard = capabilities & WL_SEAT_CAPABILITY_KEYBOARD;
    if (!hasKeyboard && m_keyboard)
        wl_keyboard_destroy(std::exchange(m_keyboard, nullptr));
    else if (hasKeyboard && !m_keyboard)
        listenToKeyboard();
}

void WaylandDisplay::listenToPointer() {
    static const wl_pointer_listener listener{
        .enter = [](void *self, wl_pointer *, std::uint32_t, wl_surface *, wl_fixed_t,
                    wl_fixed_t) { static_cast<WaylandDisplay *>(self)->m_hasPointer = true; },
        .leave = [](void *self, wl_pointer *, std::uint32_t,
                    wl_surface *) { static_cast<WaylandDisplay *>(self)->m_hasPointer = false; },
        .motion = ignore<wl_pointer *, std::uint32_t, wl_fixed_t, wl_fixed_t>,
        .button =
            [](void *self, wl_pointer *, std::uint32_t serial, std::uint32_t, std::uint32_t,
               std::uint32_t state) {
                if (state == WL_POINTER_BUTTON_STATE_PRESSED)
                    static_cast<WaylandDisplay *>(self)->m_pressSerial = serial;
            },
        .axis = ignore<wl_pointer *, std::uint32_t, std::uint32_t, wl_fixed_t>,
        .frame = nullptr,
        .axis_source = nullptr,
        .axis_stop = nullptr,
        .axis_discrete = nullptr};
    m_pointer = wl_seat_get_pointer(m_seat);
    wl_pointer_add_listener(m_pointer, &listener, this);
}

void WaylandDisplay::listenToKeyboard() {
    static const wl_keyboard_listener listener{
        .keymap = [](void *, wl_keyboard *, std::uint32_t, std::int32_t descriptor,
                     std::uint32_t) { ::close(descriptor); },
        .enter = ignore<wl_keyboard *, std::uint32_t, wl_surface *, wl_array *>,
        .leave = ignore<wl_keyboard *, std::uint32_t, wl_surface *>,
        .key =
            [](void *self, wl_keyboard *, std::uint32_t serial, std::uint32_t, std::uint32_t,
               std::uint32_t state) {
                if (state == WL_KEYBOARD_KEY_STATE_PRESSED)
                    static_cast<WaylandDisplay *>(self)->m_pressSerial = serial;
            },
        .modifiers =
            ignore<wl_keyboard *, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t>,
        .repeat_info = nullptr};
    m_keyboard = wl_seat_get_keyboard(m_seat);
    wl_keyboard_add_listener(m_keyboard, &listener, this);
}

} // namespace tembra
