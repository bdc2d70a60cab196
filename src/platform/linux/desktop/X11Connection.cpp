#include "platform/linux/desktop/X11Connection.h"

#include <QByteArray>
#include <QGuiApplication>

#include <xcb/xcb.h>

namespace tembra {

namespace {

xcb_screen_t *screenOfDisplay(xcb_connection_t *xcb, int number) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    for (int index = 0; screens.rem > 0; ++index, xcb_screen_next(&screens)) {
        if (index == number)
            return screens.data;
    }
    return nullptr;
}

// The number behind the last dot of a display's name: ":0.1" is screen 1.
int defaultScreenNumber() {
    const QByteArray display = qgetenv("DISPLAY");
    const qsizetype colon = display.lastIndexOf(':');
    const qsizetype dot = display.indexOf('.', colon < 0 ? 0 : colon);
    return dot < 0 ? 0 : display.mid(dot + 1).toInt();
}

} // namespace

std::shared_ptr<X11Connection> X11Connection::open() {
    const auto *native = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    xcb_connection_t *const xcb = native ? native->connection() : nullptr;
    if (!xcb || xcb_connection_has_error(xcb))
        return nullptr;
    const int number = defaultScreenNumber();
    const xcb_screen_t *const screen = screenOfDisplay(xcb, number);
    if (!screen)
        return nullptr;
    return std::shared_ptr<X11Connection>(new X11Connection(xcb, number, screen->root));
}

X11Connection::X11Connection(xcb_connection_t *xcb, int screenNumber, xcb_window_t root)
    : m_xcb(xcb), m_screenNumber(screenNumber), m_root(root) {
    // Qt selects events of the root window on this same connection: its selection is kept.
    const X11Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(xcb, xcb_get_window_attributes(xcb, root), nullptr));
    const std::uint32_t mask =
        (attributes ? attributes->your_event_mask : 0) | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(xcb, root, XCB_CW_EVENT_MASK, &mask);
    qGuiApp->installNativeEventFilter(this);
}

X11Connection::~X11Connection() {
    if (qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

bool X11Connection::owns(xcb_window_t window) const {
    const xcb_setup_t *const setup = xcb_get_setup(m_xcb);
    return window != XCB_WINDOW_NONE && (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

xcb_atom_t X11Connection::atom(const QByteArray &name) const {
    const X11Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_xcb, xcb_intern_atom(m_xcb, false, static_cast<std::uint16_t>(name.size()), name.constData()),
        nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

xcb_window_t X11Connection::selectionOwner(xcb_atom_t selection) const {
    const X11Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_xcb, xcb_get_selection_owner(m_xcb, selection), nullptr));
    return reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

std::unique_ptr<X11Connection::Subscription>
X11Connection::subscribe(std::function<void(const xcb_generic_event_t &)> onEvent) {
    return m_observers.add(std::move(onEvent));
}

std::unique_ptr<X11Connection::Subscription>
X11Connection::watchRootProperty(xcb_atom_t property, std::function<void()> onChange) {
    return subscribe([root = m_root, property, onChange = std::move(onChange)](const auto &event) {
        if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            return;
        const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        if (change.window == root && change.atom == property)
            onChange();
    });
}

bool X11Connection::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *) {
    if (eventType == "xcb_generic_event_t")
        m_observers.notify(*static_cast<const xcb_generic_event_t *>(message));
    return false;
}

} // namespace tembra
