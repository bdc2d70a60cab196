#pragma once

#include <QSocketNotifier>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct wl_display;
struct wl_interface;
struct wl_proxy;
struct wl_registry;

namespace tembra {

// A connection of our own to the Wayland compositor, whatever Qt runs on. Main thread; sleeps until the
// compositor has something to tell. A compositor that is gone or does not answer is never waited for long.
class WaylandConnection {
public:
    // Nothing where there is no compositor that answers.
    [[nodiscard]] static std::unique_ptr<WaylandConnection> open();
    ~WaylandConnection();
    WaylandConnection(const WaylandConnection &) = delete;
    WaylandConnection &operator=(const WaylandConnection &) = delete;

    // The first of the compositor's objects of that kind, in version 1; nothing when it has none. Belongs to
    // the caller and ends before the connection.
    [[nodiscard]] wl_proxy *bind(const wl_interface &interface);
    // Whether everything that was asked for so far has been dealt with, and told of.
    [[nodiscard]] bool roundtrip();
    void flush();

private:
    struct Global {
        std::uint32_t name;
        std::string interface;
    };

    explicit WaylandConnection(wl_display *display);
    void addGlobal(std::uint32_t name, const char *interface);
    void removeGlobal(std::uint32_t name);
    // Handles what is there to read, after waiting for it up to that long. False once the connection is lost.
    bool read(int milliseconds);

    wl_display *const m_display;
    wl_registry *const m_registry;
    std::vector<Global> m_globals;
    QSocketNotifier m_readable;
};

} // namespace tembra
