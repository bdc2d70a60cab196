#include "platform/linux/desktop/X11ClipboardWatch.h"

#include "platform/linux/desktop/X11Connection.h"

#include <xcb/xfixes.h>

#include <string_view>

namespace tembra {

namespace {

constexpr std::uint8_t eventNumberMask = 0x7f;

} // namespace

X11ClipboardWatch::X11ClipboardWatch() : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection.get()))
        return;
    select();
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection.get()), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { drain(); });
}

void X11ClipboardWatch::select() {
    xcb_connection_t *connection = m_connection.get();
    const auto *fixes = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (!fixes || !fixes->present)
        return;
    m_firstFixesEvent = fixes->first_event;
    constexpr std::string_view name = "CLIPBOARD";
    const auto atomRequest =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto version =
        xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION);
    const X11Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection, atomRequest, nullptr));
    const X11Reply<xcb_xfixes_query_version_reply_t> known(
        xcb_xfixes_query_version_reply(connection, version, nullptr));
    if (!atom || !known)
        return;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_xfixes_select_selection_input(connection, root, atom->atom,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    xcb_flush(connection);
}

std::int64_t X11ClipboardWatch::changeCount() {
    // The answer comes after the events of everything that happened before the question.
    xcb_connection_t *connection = m_connection.get();
    const X11Reply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    drain();
    return m_changeCount;
}

void X11ClipboardWatch::drain() {
    const std::int64_t before = m_changeCount;
    while (const X11Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        if ((event->response_type & eventNumberMask) == m_firstFixesEvent + XCB_XFIXES_SELECTION_NOTIFY)
            ++m_changeCount;
    }
    if (m_notifier && xcb_connection_has_error(m_connection.get()))
        m_notifier->setEnabled(false);
    if (m_changeCount != before && onChanged)
        onChanged();
}

} // namespace tembra
