#pragma once

#include <QSocketNotifier>

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>
#include <memory>

namespace tembra {

// Counts how often the clipboard of the X server changed hands, through a connection of its own: what it
// tells holds for the moment of the call, however far Qt has come with its events. Main thread.
class X11ClipboardWatch {
public:
    X11ClipboardWatch();
    X11ClipboardWatch(const X11ClipboardWatch &) = delete;
    X11ClipboardWatch &operator=(const X11ClipboardWatch &) = delete;

    std::function<void()> onChanged;

    [[nodiscard]] std::int64_t changeCount();

private:
    struct Disconnect {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };

    void select();
    void drain();

    const std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::uint8_t m_firstFixesEvent = 0;
    std::int64_t m_changeCount = 0;
};

} // namespace tembra
