#include "ForeignProgram.h"

#include "support/EventLoop.h"

#include <QGuiApplication>

#include <xcb/xtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

namespace tembra {

namespace {

template <class Reply>
std::unique_ptr<Reply, void (*)(void *)> owned(Reply *reply) {
    return {reply, std::free};
}

// What this program asked the server for happens before what the other one asks for next.
void finishOwnRequests() {
    xcb_connection_t *const xcb = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    owned(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

// One connection for all tests: the server would give the numbers of closed windows to the next one, and the
// window manager take new windows for old ones.
xcb_connection_t *connection() {
    static xcb_connection_t *const xcb = xcb_connect(nullptr, nullptr);
    return xcb;
}

} // namespace

ForeignProgram::ForeignProgram()
    : m_xcb(connection()),
      m_root(xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data->root),
      m_messenger(createWindow({0, 0, 1, 1}, true)) {
    // Away from everything, wherever the last test left it.
    movePointer({1200, 700});
}

ForeignProgram::~ForeignProgram() {
    for (const xcb_window_t window : m_windows)
        xcb_destroy_window(m_xcb, window);
    xcb_flush(m_xcb);
    eventually([this] {
        const auto stacking = property(m_root, "_NET_CLIENT_LIST_STACKING");
        return std::ranges::find_first_of(stacking, m_windows) == stacking.end();
    });
    static_cast<void>(pressCount());
}

xcb_window_t ForeignProgram::openWindow(const QRect &rect) {
    const xcb_window_t window = createWindow(rect, false);
    const std::array<std::uint32_t, 5> bare{2, 0, 0, 0, 0};
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, window, atom("_MOTIF_WM_HINTS"),
                        atom("_MOTIF_WM_HINTS"), 32, bare.size(), bare.data());
    // The place is the user's wish.
    std::array<std::uint32_t, 18> hints{};
    hints[0] = 1;
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS,
                        XCB_ATOM_WM_SIZE_HINTS, 32, hints.size(), hints.data());
    xcb_map_window(m_xcb, window);
    xcb_flush(m_xcb);
    if (!eventually([&] { return !property(window, "_NET_WM_DESKTOP").empty(); }))
        qFatal("the window manager did not take the window");
    activate(window);
    return window;
}

xcb_window_t ForeignProgram::openMenu(const QRect &rect) {
    const xcb_window_t window = createWindow(rect, true);
    xcb_map_window(m_xcb, window);
    xcb_flush(m_xcb);
    return window;
}

void ForeignProgram::activate(xcb_window_t window) {
    finishOwnRequests();
    askWindowManager(window, "_NET_ACTIVE_WINDOW", 2, XCB_CURRENT_TIME);
    const bool isDone = eventually([&] {
        const auto stacking = property(m_root, "_NET_CLIENT_LIST_STACKING");
        return !stacking.empty() && stacking.back() == window && focusedWindow() == window;
    });
    if (!isDone)
        qFatal("the window manager did not activate the window");
    finishWindowManagement();
}

void ForeignProgram::takeKeyboard(xcb_window_t window) {
    xcb_set_input_focus(m_xcb, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    static_cast<void>(focusedWindow());
}

void ForeignProgram::movePointer(QPoint position) {
    fake(XCB_MOTION_NOTIFY, 0, position);
}

void ForeignProgram::press(int button) {
    fake(XCB_BUTTON_PRESS, static_cast<std::uint8_t>(button));
}

void ForeignProgram::release(int button) {
    fake(XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(button));
}

void ForeignProgram::click(QPoint position, int button) {
    movePointer(position);
    press(button);
    release(button);
}

void ForeignProgram::typeKey(char key) {
    const xcb_setup_t *const setup = xcb_get_setup(m_xcb);
    const std::uint8_t first = setup->min_keycode;
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - first + 1);
    const auto reply =
        owned(xcb_get_keyboard_mapping_reply(m_xcb, xcb_get_keyboard_mapping(m_xcb, first, count), nullptr));
    const xcb_keysym_t *const symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (std::size_t code = 0; code < count; ++code) {
        if (symbols[code * reply->keysyms_per_keycode] != static_cast<xcb_keysym_t>(key))
            continue;
        fake(XCB_KEY_PRESS, static_cast<std::uint8_t>(first + code));
        fake(XCB_KEY_RELEASE, static_cast<std::uint8_t>(first + code));
        return;
    }
    qFatal("no such key");
}

void ForeignProgram::holdKey(std::uint8_t keycode) {
    fake(XCB_KEY_PRESS, keycode);
}

void ForeignProgram::releaseKey(std::uint8_t keycode) {
    fake(XCB_KEY_RELEASE, keycode);
}

bool ForeignProgram::grabKey(std::uint8_t keycode, std::uint16_t modifiers) {
    const auto request =
        xcb_grab_key_checked(m_xcb, 0, m_root, modifiers, keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    return owned(xcb_request_check(m_xcb, request)) == nullptr;
}

void ForeignProgram::ungrabKey(std::uint8_t keycode, std::uint16_t modifiers) {
    xcb_ungrab_key(m_xcb, keycode, m_root, modifiers);
    static_cast<void>(focusedWindow());
}

void ForeignProgram::setButtonOrder(const std::vector<std::uint8_t> &order) {
    const auto current = owned(xcb_get_pointer_mapping_reply(m_xcb, xcb_get_pointer_mapping(m_xcb), nullptr));
    std::uint8_t *const all = xcb_get_pointer_mapping_map(current.get());
    std::ranges::copy(order, all);
    const auto count = static_cast<std::uint8_t>(xcb_get_pointer_mapping_map_length(current.get()));
    const auto reply =
        owned(xcb_set_pointer_mapping_reply(m_xcb, xcb_set_pointer_mapping(m_xcb, count, all), nullptr));
    if (!reply || reply->status != XCB_MAPPING_STATUS_SUCCESS)
        qFatal("the buttons of the mouse keep their order");
}

int ForeignProgram::pressCount() {
    while (const auto event = owned(xcb_poll_for_event(m_xcb))) {
        if ((event->response_type & 0x7f) == XCB_BUTTON_PRESS)
            ++m_pressCount;
    }
    return m_pressCount;
}

void ForeignProgram::takeSelection(const char *name) {
    setSelection(name, m_messenger);
}

void ForeignProgram::dropSelection(const char *name) {
    setSelection(name, XCB_WINDOW_NONE);
}

void ForeignProgram::showDesktop(std::uint32_t index) {
    askWindowManager(m_root, "_NET_CURRENT_DESKTOP", index, XCB_CURRENT_TIME);
}

std::uint32_t ForeignProgram::desktop() {
    const auto current = property(m_root, "_NET_CURRENT_DESKTOP");
    return current.empty() ? 0 : current.front();
}

xcb_window_t ForeignProgram::focusedWindow() {
    const auto reply = owned(xcb_get_input_focus_reply(m_xcb, xcb_get_input_focus(m_xcb), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

bool ForeignProgram::isAbove(xcb_window_t upper, xcb_window_t lower) {
    const xcb_window_t upperTop = topLevel(upper);
    const xcb_window_t lowerTop = topLevel(lower);
    const auto tree = owned(xcb_query_tree_reply(m_xcb, xcb_query_tree(m_xcb, m_root), nullptr));
    const xcb_window_t *const begin = xcb_query_tree_children(tree.get());
    const xcb_window_t *const end = begin + xcb_query_tree_children_length(tree.get());
    const xcb_window_t *const found = std::find(begin, end, upperTop);
    return found != end && std::find(begin, found, lowerTop) != found;
}

xcb_window_t ForeignProgram::createWindow(const QRect &rect, bool isMenu) {
    finishOwnRequests();
    const xcb_window_t window = xcb_generate_id(m_xcb);
    const std::array<std::uint32_t, 2> values{isMenu ? 1U : 0U, XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(m_xcb, XCB_COPY_FROM_PARENT, window, m_root, static_cast<std::int16_t>(rect.x()),
                      static_cast<std::int16_t>(rect.y()), static_cast<std::uint16_t>(rect.width()),
                      static_cast<std::uint16_t>(rect.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    m_windows.push_back(window);
    return window;
}

xcb_atom_t ForeignProgram::atom(const char *name) {
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const auto reply =
        owned(xcb_intern_atom_reply(m_xcb, xcb_intern_atom(m_xcb, false, length, name), nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::vector<std::uint32_t> ForeignProgram::property(xcb_window_t window, const char *name) {
    const auto reply = owned(xcb_get_property_reply(
        m_xcb, xcb_get_property(m_xcb, false, window, atom(name), XCB_ATOM_ANY, 0, 1024), nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *const begin = static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
    return {begin, begin + xcb_get_property_value_length(reply.get()) / 4};
}

xcb_window_t ForeignProgram::topLevel(xcb_window_t window) {
    while (const auto tree = owned(xcb_query_tree_reply(m_xcb, xcb_query_tree(m_xcb, window), nullptr))) {
        if (tree->parent == m_root || tree->parent == XCB_WINDOW_NONE)
            break;
        window = tree->parent;
    }
    return window;
}

void ForeignProgram::askWindowManager(xcb_window_t window, const char *message, std::uint32_t first,
                                      std::uint32_t second) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    event.data.data32[0] = first;
    event.data.data32[1] = second;
    xcb_send_event(m_xcb, false, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(m_xcb);
}

void ForeignProgram::finishWindowManagement() {
    xcb_delete_property(m_xcb, m_messenger, atom("_NET_FRAME_EXTENTS"));
    askWindowManager(m_messenger, "_NET_REQUEST_FRAME_EXTENTS", 0, 0);
    if (!eventually([this] { return !property(m_messenger, "_NET_FRAME_EXTENTS").empty(); }))
        qFatal("the window manager does not answer");
}

void ForeignProgram::fake(std::uint8_t type, std::uint8_t detail, QPoint position) {
    finishOwnRequests();
    xcb_test_fake_input(m_xcb, type, detail, XCB_CURRENT_TIME, m_root,
                        static_cast<std::int16_t>(position.x()), static_cast<std::int16_t>(position.y()), 0);
    // What follows sees it done.
    static_cast<void>(focusedWindow());
}

void ForeignProgram::setSelection(const char *name, xcb_window_t owner) {
    finishOwnRequests();
    xcb_set_selection_owner(m_xcb, owner, atom(name), XCB_CURRENT_TIME);
    xcb_flush(m_xcb);
}

} // namespace tembra
