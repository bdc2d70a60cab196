#include "support/ChildProgram.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <optional>

namespace {

using tembra::ChildProgram;

// Blocks until the window manager has announced itself on the root window.
bool waitForWindowManager() {
    const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> xcb(xcb_connect(nullptr, nullptr),
                                                                              xcb_disconnect);
    if (xcb_connection_has_error(xcb.get()))
        return false;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(xcb.get())).data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(xcb.get(), root, XCB_CW_EVENT_MASK, &mask);
    const QByteArray name = QByteArrayLiteral("_NET_CLIENT_LIST_STACKING");
    const auto cookie =
        xcb_intern_atom(xcb.get(), false, static_cast<std::uint16_t>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, void (*)(void *)> atom(
        xcb_intern_atom_reply(xcb.get(), cookie, nullptr), std::free);
    while (atom) {
        const auto property = xcb_get_property(xcb.get(), false, root, atom->atom, XCB_ATOM_ANY, 0, 0);
        const std::unique_ptr<xcb_get_property_reply_t, void (*)(void *)> reply(
            xcb_get_property_reply(xcb.get(), property, nullptr), std::free);
        if (reply && reply->type != XCB_ATOM_NONE)
            return true;
        const std::unique_ptr<xcb_generic_event_t, void (*)(void *)> event(xcb_wait_for_event(xcb.get()),
                                                                           std::free);
        if (!event)
            return false;
    }
    return false;
}

// A desktop of its own: an X server, a window manager and a message bus, with nothing of the user's.
class Desktop {
public:
    Desktop()
        : m_server(
              {"Xvfb", "-displayfd", "1", "-noreset", "-nolisten", "tcp", "-screen", "0", "1280x800x24"}),
          m_bus({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"}) {
        const QByteArray display = m_server.readLine();
        const QByteArray address = m_bus.readLine();
        if (display.isEmpty() || address.isEmpty())
            return;
        qputenv("DISPLAY", ":" + display);
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
        qputenv("XDG_CONFIG_HOME", m_home.path().toLocal8Bit());
        qputenv("XDG_RUNTIME_DIR", m_home.path().toLocal8Bit());
        qputenv("XDG_CACHE_HOME", m_home.path().toLocal8Bit());
        m_windowManager.emplace({"openbox", "--sm-disable"});
        m_isRunning = waitForWindowManager();
    }

    [[nodiscard]] bool isRunning() const { return m_isRunning; }

private:
    const QTemporaryDir m_home;
    ChildProgram m_server;
    ChildProgram m_bus;
    std::optional<ChildProgram> m_windowManager;
    bool m_isRunning = false;
};

} // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const Desktop desktop;
    if (!desktop.isRunning()) {
        std::fputs("These tests need Xvfb, openbox and dbus-daemon.\n", stderr);
        return EXIT_FAILURE;
    }
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
