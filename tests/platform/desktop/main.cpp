#include "support/ChildProgram.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <optional>

namespace {

using tembra::ChildProgram;

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};

xcb_atom_t atom(xcb_connection_t *xcb, const QByteArray &name) {
    const auto cookie =
        xcb_intern_atom(xcb, false, static_cast<std::uint16_t>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb_intern_atom_reply(xcb, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

// Asks the window manager for two virtual desktops until it has made them: it has announced itself before it
// looks at requests, and leaves some lying that reach it in between.
bool waitForWindowManager() {
    const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> xcb(xcb_connect(nullptr, nullptr),
                                                                              xcb_disconnect);
    if (xcb_connection_has_error(xcb.get()))
        return false;
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = xcb_setup_roots_iterator(xcb_get_setup(xcb.get())).data->root;
    request.type = atom(xcb.get(), QByteArrayLiteral("_NET_NUMBER_OF_DESKTOPS"));
    request.data.data32[0] = 2;
    const QDeadlineTimer deadline(20'000);
    while (!deadline.hasExpired()) {
        xcb_send_event(xcb.get(), false, request.window,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&request));
        const auto cookie =
            xcb_get_property(xcb.get(), false, request.window, request.type, XCB_ATOM_CARDINAL, 0, 1);
        const std::unique_ptr<xcb_get_property_reply_t, Free> reply(
            xcb_get_property_reply(xcb.get(), cookie, nullptr));
        if (!reply)
            return false;
        if (reply->format == 32 &&
            *static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get())) == 2)
            return true;
        QThread::yieldCurrentThread();
    }
    return false;
}

// Servers that look for a free display number at the same time can get in each other's way.
std::string ownDisplay() {
    return ":" + std::to_string(1000 + QCoreApplication::applicationPid() % 50'000);
}

// A desktop of its own: an X server, a window manager and a message bus, with nothing of the user's.
class Desktop {
public:
    Desktop()
        : m_server({"Xvfb", ownDisplay().c_str(), "-displayfd", "1", "-noreset", "-nolisten", "tcp",
                    "-screen", "0", "1280x800x24"}),
          m_bus({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"}) {
        const QByteArray display = m_server.readLine();
        const QByteArray address = m_bus.readLine();
        if (display.isEmpty() || address.isEmpty())
            return;
        qputenv("LC_ALL", "C.UTF-8");
        qputenv("TZ", "UTC");
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
