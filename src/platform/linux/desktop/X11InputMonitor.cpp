#include "platform/linux/desktop/X11InputMonitor.h"

#include <QCursor>

#include <xcb/xinput.h>

#include <array>

namespace tembra {

namespace {

constexpr std::uint32_t buttonMask =
    XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
constexpr std::uint32_t motionMask = XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;

std::uint8_t inputOpcode(xcb_connection_t *xcb) {
    const xcb_query_extension_reply_t *const extension = xcb_get_extension_data(xcb, &xcb_input_id);
    if (!extension || !extension->present)
        return 0;
    // From 2.1 on raw events arrive during grabs too. Qt may have asked for a later version already, which
    // then stays.
    const X11Reply<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(xcb, xcb_input_xi_query_version(xcb, 2, 2), nullptr));
    return extension->major_opcode;
}

X11Reply<xcb_query_pointer_reply_t> queryPointer(const X11Connection &connection, xcb_window_t window) {
    return X11Reply<xcb_query_pointer_reply_t>(
        xcb_query_pointer_reply(connection.xcb(), xcb_query_pointer(connection.xcb(), window), nullptr));
}

bool isLeftButtonDown(const X11Connection &connection) {
    const auto pointer = queryPointer(connection, connection.root());
    return pointer && (pointer->mask & XCB_BUTTON_MASK_1) != 0;
}

bool isOverOwnWindow(const X11Connection &connection) {
    // Our ordinary windows lie in frames of the window manager.
    for (xcb_window_t window = connection.root(); window != XCB_WINDOW_NONE;) {
        const auto pointer = queryPointer(connection, window);
        window = pointer ? pointer->child : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
        if (connection.owns(window))
            return true;
    }
    return false;
}

bool isForeign(const X11Connection &connection, xcb_window_t owner) {
    return owner != XCB_WINDOW_NONE && !connection.owns(owner);
}

} // namespace

X11InputMonitor::X11InputMonitor(std::shared_ptr<X11Connection> connection, Scheduler &scheduler)
    : m_connection(std::move(connection)),
      m_dragSelection(m_connection->atom(QByteArrayLiteral("XdndSelection"))),
      m_inputOpcode(inputOpcode(m_connection->xcb())),
      m_throttle(scheduler, [this] { receiveMotion(); }),
      m_observers([this] { updateSelection(); }) {}

X11InputMonitor::~X11InputMonitor() {
    select(0);
}

std::unique_ptr<InputMonitor::Observation>
X11InputMonitor::observe(std::function<void(const Event &)> onEvent) {
    return m_observers.add(std::move(onEvent));
}

// A program keeps the selection long after its drag has ended: taking it since the press is what tells.
bool X11InputMonitor::isForeignDragOffered() const {
    if (m_dragWatch)
        return m_isDragOffered;
    return isLeftButtonDown(*m_connection) &&
           isForeign(*m_connection, m_connection->selectionOwner(m_dragSelection));
}

ScreenPoint X11InputMonitor::pointer() const {
    const QPoint position = QCursor::pos();
    return {static_cast<double>(position.x()), static_cast<double>(position.y())};
}

void X11InputMonitor::updateSelection() {
    const bool wantsButtons = !m_observers.isEmpty();
    const bool wantsMotion = wantsButtons && m_isLeftDown;
    select((wantsButtons ? buttonMask : 0) | (wantsMotion ? motionMask : 0));
}

void X11InputMonitor::select(std::uint32_t mask) {
    if (m_inputOpcode == 0 || mask == m_selected)
        return;
    const bool startsWatchingButtons = (mask & ~m_selected & buttonMask) != 0;
    m_selected = mask;
    // Qt selects for all devices together, which is a selection of its own.
    const struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } request{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, mask};
    xcb_input_xi_select_events(m_connection->xcb(), m_connection->root(), 1, &request.head);
    xcb_flush(m_connection->xcb());
    if (mask == 0) {
        m_events.reset();
        m_throttle.cancel();
    } else if (!m_events) {
        m_events = m_connection->subscribe([this](const xcb_generic_event_t &event) { receive(event); });
    }
    if (startsWatchingButtons)
        startWatchingButtons();
    else if ((mask & buttonMask) == 0)
        m_dragWatch.reset();
}

void X11InputMonitor::startWatchingButtons() {
    readButtonOrder();
    m_dragWatch = m_connection->watchSelection(m_dragSelection, [this](xcb_window_t owner) {
        m_isDragOffered = m_isLeftDown && isForeign(*m_connection, owner);
    });
    m_isLeftDown = isLeftButtonDown(*m_connection);
    m_isDragOffered = m_isLeftDown && isForeign(*m_connection, m_connection->selectionOwner(m_dragSelection));
    updateSelection();
}

void X11InputMonitor::receive(const xcb_generic_event_t &event) {
    const int type = event.response_type & 0x7f;
    if (type == XCB_MAPPING_NOTIFY) {
        if (reinterpret_cast<const xcb_mapping_notify_event_t &>(event).request == XCB_MAPPING_POINTER)
            readButtonOrder();
        return;
    }
    if (type != XCB_GE_GENERIC)
        return;
    const auto &raw = reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event);
    if (raw.extension != m_inputOpcode)
        return;
    if (raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS || raw.event_type == XCB_INPUT_RAW_BUTTON_RELEASE)
        receiveButton(raw.detail, raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS);
    else if (raw.event_type == XCB_INPUT_RAW_MOTION)
        m_throttle.move();
}

void X11InputMonitor::receiveButton(std::uint32_t physicalButton, bool isDown) {
    const bool isMapped = physicalButton >= 1 && physicalButton <= m_buttonOrder.size();
    const std::uint32_t button = isMapped ? m_buttonOrder[physicalButton - 1] : physicalButton;
    if (button == XCB_BUTTON_INDEX_3 && isDown)
        return report(Kind::rightDown);
    if (button != XCB_BUTTON_INDEX_1)
        return;
    m_isLeftDown = isDown;
    updateSelection();
    if (isDown) {
        m_isDragOffered = false;
        report(Kind::leftDown);
        return;
    }
    // Who hears of the release may still ask what was dragged until then.
    report(Kind::leftUp);
    m_isDragOffered = false;
}

void X11InputMonitor::receiveMotion() {
    if (m_isLeftDown && !m_observers.isEmpty())
        report(Kind::leftDragged);
}

void X11InputMonitor::readButtonOrder() {
    xcb_connection_t *const xcb = m_connection->xcb();
    const X11Reply<xcb_get_pointer_mapping_reply_t> reply(
        xcb_get_pointer_mapping_reply(xcb, xcb_get_pointer_mapping(xcb), nullptr));
    m_buttonOrder.clear();
    if (!reply)
        return;
    const std::uint8_t *const order = xcb_get_pointer_mapping_map(reply.get());
    m_buttonOrder.assign(order, order + xcb_get_pointer_mapping_map_length(reply.get()));
}

void X11InputMonitor::report(Kind kind) {
    m_observers.notify({kind, pointer(), isOverOwnWindow(*m_connection)});
}

} // namespace tembra
