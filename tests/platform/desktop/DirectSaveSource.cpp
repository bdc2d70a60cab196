#include "DirectSaveSource.h"

#include "support/Files.h"

#include <QUrl>

#include <array>
#include <cstdlib>
#include <memory>
#include <poll.h>

namespace tembra {

namespace {

template <class Reply>
std::unique_ptr<Reply, void (*)(void *)> owned(Reply *reply) {
    return {reply, std::free};
}

} // namespace

DirectSaveSource::DirectSaveSource(Offer offer, xcb_window_t target, QPoint rootPosition)
    : m_offer(std::move(offer)),
      m_target(target),
      m_position(rootPosition),
      m_xcb(xcb_connect(nullptr, nullptr)),
      m_thread([this] { run(); }) {}

DirectSaveSource::~DirectSaveSource() {
    m_thread.join();
    xcb_disconnect(m_xcb);
}

void DirectSaveSource::run() {
    const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data;
    m_window = xcb_generate_id(m_xcb);
    xcb_create_window(m_xcb, 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      screen->root_visual, 0, nullptr);
    // Browsers hand over the content by another window.
    const xcb_window_t owner = xcb_generate_id(m_xcb);
    xcb_create_window(m_xcb, 0, owner, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      screen->root_visual, 0, nullptr);
    xcb_set_selection_owner(m_xcb, owner, atom("XdndSelection"), XCB_CURRENT_TIME);
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, m_window, atom("XdndDirectSave0"), atom("text/plain"),
                        8, static_cast<std::uint32_t>(m_offer.name.size()), m_offer.name.constData());
    constexpr std::uint32_t version = 5U << 24;
    tell("XdndEnter", version, atom("XdndDirectSave0"), atom("application/octet-stream"), 0);
    const auto position = static_cast<std::uint32_t>(m_position.x() << 16 | m_position.y());
    tell("XdndPosition", 0, position, XCB_CURRENT_TIME, atom("XdndActionCopy"));
    constexpr int deadline = 20'000;
    pollfd input{xcb_get_file_descriptor(m_xcb), POLLIN, 0};
    while (!m_isFinished) {
        const auto event = owned(xcb_poll_for_event(m_xcb));
        if (!event && ::poll(&input, 1, deadline) <= 0)
            return;
        const int type = event ? event->response_type & 0x7f : 0;
        if (type == XCB_SELECTION_REQUEST)
            answer(*reinterpret_cast<const xcb_selection_request_event_t *>(event.get()));
        else if (type == XCB_CLIENT_MESSAGE)
            handle(*reinterpret_cast<const xcb_client_message_event_t *>(event.get()));
    }
}

void DirectSaveSource::handle(const xcb_client_message_event_t &message) {
    const bool isAccepted = (message.data.data32[1] & 1) != 0;
    if (message.type == atom("XdndStatus") && isAccepted && !m_hasDropped) {
        m_hasDropped = true;
        tell("XdndDrop", 0, XCB_CURRENT_TIME, 0, 0);
    } else if (message.type == atom("XdndFinished")) {
        m_lastProperty = readProperty();
        m_isFinished = true;
    }
}

void DirectSaveSource::tell(const char *message, std::uint32_t second, std::uint32_t third,
                            std::uint32_t fourth, std::uint32_t fifth) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = m_target;
    event.type = atom(message);
    const std::array<std::uint32_t, 5> data{m_window, second, third, fourth, fifth};
    std::copy(data.begin(), data.end(), event.data.data32);
    xcb_send_event(m_xcb, false, m_target, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&event));
    xcb_flush(m_xcb);
}

void DirectSaveSource::answer(const xcb_selection_request_event_t &request) {
    const QByteArray bytes = data(request.target);
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, request.requestor, request.property, request.target, 8,
                        static_cast<std::uint32_t>(bytes.size()), bytes.constData());
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    notice.property = request.property;
    xcb_send_event(m_xcb, false, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&notice));
    xcb_flush(m_xcb);
}

QByteArray DirectSaveSource::data(xcb_atom_t type) {
    if (type == atom("application/octet-stream"))
        return m_offer.content;
    if (type != atom("XdndDirectSave0"))
        return {};
    if (m_offer.answer == 'S')
        writeFile(QUrl::fromEncoded(readProperty()).toLocalFile(), m_offer.content);
    return QByteArray(1, m_offer.answer);
}

QByteArray DirectSaveSource::readProperty() {
    const auto reply = owned(xcb_get_property_reply(
        m_xcb, xcb_get_property(m_xcb, false, m_window, atom("XdndDirectSave0"), XCB_ATOM_ANY, 0, 1024),
        nullptr));
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

xcb_atom_t DirectSaveSource::atom(const QByteArray &name) {
    xcb_atom_t &known = m_atoms[name];
    if (known == XCB_ATOM_NONE)
        known =
            owned(xcb_intern_atom_reply(m_xcb,
                                        xcb_intern_atom(m_xcb, false, static_cast<std::uint16_t>(name.size()),
                                                        name.constData()),
                                        nullptr))
                ->atom;
    return known;
}

} // namespace tembra
