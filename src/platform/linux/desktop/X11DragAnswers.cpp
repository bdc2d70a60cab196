#include "platform/linux/desktop/X11DragAnswers.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QWidget>

#include <array>
#include <cstring>

namespace tembra {

namespace {

constexpr std::uint8_t eventNumberMask = 0x7f;

// Of the drag that was begun last; Qt keeps it until its drop has ended. Empty when there is none.
QByteArray draggedUris() {
    const QDrag *latest = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (const auto drags = window->findChildren<QDrag *>(); !drags.isEmpty())
            latest = drags.constLast();
    }
    return latest && latest->mimeData() ? latest->mimeData()->data(QStringLiteral("text/uri-list"))
                                        : QByteArray();
}

} // namespace

X11DragAnswers::X11DragAnswers(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_selection(m_connection->atom(QByteArrayLiteral("XdndSelection"))),
      m_uriList(m_connection->atom(QByteArrayLiteral("text/uri-list"))) {
    qGuiApp->installNativeEventFilter(this);
}

X11DragAnswers::~X11DragAnswers() {
    if (qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

bool X11DragAnswers::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *) {
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & eventNumberMask) != XCB_SELECTION_REQUEST)
        return false;
    const auto &request = *reinterpret_cast<const xcb_selection_request_event_t *>(event);
    if (!isForFiles(request))
        return false;
    const QByteArray uris = draggedUris();
    const std::size_t longest = std::size_t{xcb_get_maximum_request_length(m_connection->xcb())} * 4 -
                                sizeof(xcb_change_property_request_t);
    if (uris.isEmpty() || static_cast<std::size_t>(uris.size()) > longest)
        return false;
    answer(request, uris);
    return true;
}

bool X11DragAnswers::isForFiles(const xcb_selection_request_event_t &request) const {
    return request.selection == m_selection && request.target == m_uriList &&
           request.time == XCB_CURRENT_TIME && request.property != XCB_ATOM_NONE;
}

void X11DragAnswers::answer(const xcb_selection_request_event_t &request, const QByteArray &uris) const {
    constexpr std::uint8_t bits = 8;
    xcb_connection_t *const xcb = m_connection->xcb();
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, request.requestor, request.property, request.target, bits,
                        static_cast<std::uint32_t>(uris.size()), uris.constData());
    const xcb_selection_notify_event_t notify{.response_type = XCB_SELECTION_NOTIFY,
                                              .pad0 = 0,
                                              .sequence = 0,
                                              .time = request.time,
                                              .requestor = request.requestor,
                                              .selection = request.selection,
                                              .target = request.target,
                                              .property = request.property};
    // Every event is of the same length on its way.
    std::array<char, sizeof(xcb_raw_generic_event_t)> bytes{};
    std::memcpy(bytes.data(), &notify, sizeof(notify));
    xcb_send_event(xcb, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, bytes.data());
    xcb_flush(xcb);
}

} // namespace tembra
