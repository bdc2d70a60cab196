#include "platform/linux/desktop/WaylandGlobals.h"

#include <QDeadlineTimer>
#include <QtGlobal>

#include <memory>
#include <poll.h>
#include <wayland-client.h>

namespace tembra {

namespace {

constexpr int patienceMilliseconds = 1000;

// Whether everything was told in time.
bool listen(wl_display *display, const bool &isDone) {
    const QDeadlineTimer deadline(patienceMilliseconds);
    while (!isDone) {
        while (wl_display_prepare_read(display) != 0)
            wl_display_dispatch_pending(display);
        wl_display_flush(display);
        pollfd state{wl_display_get_fd(display), POLLIN, 0};
        if (::poll(&state, 1, static_cast<int>(deadline.remainingTime())) <= 0) {
            wl_display_cancel_read(display);
            return false;
        }
        if (wl_display_read_events(display) < 0 || wl_display_dispatch_pending(display) < 0)
            return false;
    }
    return true;
}

} // namespace

std::vector<std::string> waylandGlobals() {
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return {};
    const std::unique_ptr<wl_display, void (*)(wl_display *)> display(wl_display_connect(nullptr),
                                                                      wl_display_disconnect);
    if (!display)
        return {};
    std::vector<std::string> globals;
    static const wl_registry_listener registryListener{
        [](void *names, wl_registry *, std::uint32_t, const char *interface, std::uint32_t) {
            static_cast<std::vector<std::string> *>(names)->emplace_back(interface);
        },
        [](void *, wl_registry *, std::uint32_t) {}};
    bool isDone = false;
    static const wl_callback_listener doneListener{
        [](void *flag, wl_callback *, std::uint32_t) { *static_cast<bool *>(flag) = true; }};
    const std::unique_ptr<wl_registry, void (*)(wl_registry *)> registry(
        wl_display_get_registry(display.get()), wl_registry_destroy);
    wl_registry_add_listener(registry.get(), &registryListener, &globals);
    const std::unique_ptr<wl_callback, void (*)(wl_callback *)> done(wl_display_sync(display.get()),
                                                                     wl_callback_destroy);
    wl_callback_add_listener(done.get(), &doneListener, &isDone);
    return listen(display.get(), isDone) ? globals : std::vector<std::string>();
}

} // namespace tembra
