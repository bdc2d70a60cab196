#include "platform/linux/desktop/WaylandConnection.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <poll.h>
#include <wayland-client.h>

namespace tembra {

namespace {

constexpr int patienceMilliseconds = 500;

} // namespace

std::unique_ptr<WaylandConnection> WaylandConnection::open() {
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return nullptr;
    wl_display *const display = wl_display_connect(nullptr);
    if (!display)
        return nullptr;
    std::unique_ptr<WaylandConnection> connection(new WaylandConnection(display));
    return connection->roundtrip() ? std::move(connection) : nullptr;
}

WaylandConnection::WaylandConnection(wl_display *display)
    : m_display(display),
      m_registry(wl_display_get_registry(display)),
      m_readable(wl_display_get_fd(display), QSocketNotifier::Read) {
    static const wl_registry_listener listener{
        [](void *self, wl_registry *, std::uint32_t name, const char *interface, std::uint32_t) {
            static_cast<WaylandConnection *>(self)->addGlobal(name, interface);
        },
        [](void *self, wl_registry *, std::uint32_t name) {
            static_cast<WaylandConnection *>(self)->removeGlobal(name);
        }};
    wl_registry_add_listener(m_registry, &listener, this);
    QObject::connect(&m_readable, &QSocketNotifier::activated, &m_readable, [this] {
        read(0);
        flush();
    });
}

WaylandConnection::~WaylandConnection() {
    m_readable.setEnabled(false);
    wl_registry_destroy(m_registry);
    wl_display_flush(m_display);
    wl_display_disconnect(m_display);
}

wl_proxy *WaylandConnection::bind(const wl_interface &interface) {
    const auto global = std::ranges::find(m_globals, interface.name, &Global::interface);
    if (global == m_globals.end())
        return nullptr;
    return static_cast<wl_proxy *>(wl_registry_bind(m_registry, global->name, &interface, 1));
}

bool WaylandConnection::roundtrip() {
    bool isDone = false;
    static const wl_callback_listener listener{
        [](void *flag, wl_callback *, std::uint32_t) { *static_cast<bool *>(flag) = true; }};
    const std::unique_ptr<wl_callback, void (*)(wl_callback *)> callback(wl_display_sync(m_display),
                                                                         wl_callback_destroy);
    if (!callback)
        return false;
    wl_callback_add_listener(callback.get(), &listener, &isDone);
    const QDeadlineTimer deadline(patienceMilliseconds);
    while (!isDone && !deadline.hasExpired()) {
        if (!read(static_cast<int>(deadline.remainingTime())))
            return false;
    }
    return isDone;
}

void WaylandConnection::flush() {
    wl_display_flush(m_display);
}

bool WaylandConnection::read(int milliseconds) {
    while (wl_display_prepare_read(m_display) != 0) {
        if (wl_display_dispatch_pending(m_display) < 0) {
            m_readable.setEnabled(false);
            return false;
        }
    }
    flush();
    pollfd state{wl_display_get_fd(m_display), POLLIN, 0};
    if (::poll(&state, 1, milliseconds) > 0)
        wl_display_read_events(m_display);
    else
        wl_display_cancel_read(m_display);
    // Tells of a connection that was lost as well.
    if (wl_display_dispatch_pending(m_display) >= 0)
        return true;
    m_readable.setEnabled(false);
    return false;
}

void WaylandConnection::addGlobal(std::uint32_t name, const char *interface) {
    m_globals.push_back({name, interface});
}

void WaylandConnection::removeGlobal(std::uint32_t name) {
    std::erase_if(m_globals, [name](const Global &global) { return global.name == name; });
}

} // namespace tembra
