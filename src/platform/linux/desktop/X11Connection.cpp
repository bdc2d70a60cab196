#include "platform/linux/desktop/X11Connection.h"

#include <QByteArray>
#include <QGuiApplication>

#include <xcb/xfixes.h>

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

std::optional<std::uint8_t> firstFixesEvent(xcb_connection_t *xcb) {
    const xcb_query_extension_reply_t *const extension = xcb_get_extension_data(xcb, &xcb_xfixes_id);
    if (!extension || !extension->present)
        return std::nullopt;
    // The server serves no other request before this one.
    const X11Reply<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(xcb, xcb_xfixes_query_version(xcb, 2, 0), nullptr));
    return version ? std::optional(extension->first_event) : std::nullopt;
}

class SelectionWatch final : public X11Connection::Subscription {
public:
    SelectionWatch(xcb_connection_t *xcb, xcb_window_t root, xcb_atom_t selection,
                   std::unique_ptr<Subscription> events)
        : m_xcb(xcb), m_root(root), m_selection(selection), m_events(std::move(events)) {
        select(XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
               XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
               XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    ~SelectionWatch() override {
        if (qGuiApp)
            select(0);
    }

private:
    void select(std::uint32_t mask) {
        xcb_xfixes_select_selection_input(m_xcb, m_root, m_selection, mask);
        xcb_flush(m_xcb);
    }

    xcb_connection_t *const m_xcb;
    const xcb_window_t m_root;
    const xcb_atom_t m_selection;
    const std::unique_ptr<Subscription> m_events;
};

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
    : m_xcb(xcb), m_screenNumber(screenNumber), m_root(root), m_firstFixesEvent(firstFixesEvent(xcb)) {
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

std::optional<std::uint32_t> X11Connection::rootValue(xcb_atom_t property, xcb_atom_t type) const {
    const X11Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_xcb, xcb_get_property(m_xcb, false, m_root, property, type, 0, 1), nullptr));
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4)
        return std::nullopt;
    return *static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
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

std::unique_ptr<X11Connection::Subscription>
X11Connection::watchSelection(xcb_atom_t selection, std::function<void(xcb_window_t)> onChange) {
    if (!m_firstFixesEvent)
        return nullptr;
    const int type = *m_firstFixesEvent + XCB_XFIXES_SELECTION_NOTIFY;
    const auto receive = [root = m_root, type, selection,
                          onChange = std::move(onChange)](const xcb_generic_event_t &event) {
        if ((event.response_type & 0x7f) != type)
            return;
        const auto &change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
        // Qt watches some of them through a window of its own.
        if (change.window != root || change.selection != selection)
            return;
        const bool isTaken = change.subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER;
        onChange(isTaken ? change.owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE));
    };
    return std::make_unique<SelectionWatch>(m_xcb, m_root, selection, subscribe(receive));
}

bool X11Connection::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *) {
    if (eventType == "xcb_generic_event_t")
        m_observers.notify(*static_cast<const xcb_generic_event_t *>(message));
    return false;
}

} // namespace tembra
