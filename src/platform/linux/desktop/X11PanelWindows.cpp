#include "platform/linux/desktop/X11PanelWindows.h"

#include <QRegion>
#include <QWidget>

#include <xcb/shape.h>

#include <cmath>
#include <vector>

namespace tembra {

X11PanelWindows::X11PanelWindows(std::shared_ptr<X11Connection> connection,
                                 std::shared_ptr<X11Stacking> stacking)
    : m_connection(std::move(connection)),
      m_stacking(std::move(stacking)),
      m_activeWindowAtom(m_connection->atom(QByteArrayLiteral("_NET_ACTIVE_WINDOW"))) {}

void X11PanelWindows::prepare(QWidget &panel) {
    QtPanelWindows::applyPanelFlags(panel);
    panel.winId();
    m_stacking->addPanel(panel);
}

bool X11PanelWindows::isShown(const QWidget &panel) const {
    return QtPanelWindows::isExposed(panel);
}

void X11PanelWindows::setInputRegion(QWidget &panel, const QRegion &region) {
    const double scale = panel.devicePixelRatioF();
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect &rect : region) {
        const int left = static_cast<int>(std::floor(rect.x() * scale));
        const int top = static_cast<int>(std::floor(rect.y() * scale));
        const int right = static_cast<int>(std::ceil((rect.x() + rect.width()) * scale));
        const int bottom = static_cast<int>(std::ceil((rect.y() + rect.height()) * scale));
        rectangles.push_back({static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                              static_cast<std::uint16_t>(right - left),
                              static_cast<std::uint16_t>(bottom - top)});
    }
    xcb_shape_rectangles(m_connection->xcb(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                         XCB_CLIP_ORDERING_UNSORTED, static_cast<xcb_window_t>(panel.winId()), 0, 0,
                         static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    xcb_flush(m_connection->xcb());
}

void X11PanelWindows::takeKeyboardFocus(QWidget &panel) {
    const auto window = static_cast<xcb_window_t>(panel.winId());
    const xcb_window_t focused = focusedWindow();
    if (focused == window)
        return;
    m_previousFocus = focused;
    setFocus(window);
}

void X11PanelWindows::returnKeyboardFocus(QWidget &panel) {
    if (focusedWindow() != static_cast<xcb_window_t>(panel.winId()))
        return;
    for (const xcb_window_t heir : {std::exchange(m_previousFocus, XCB_WINDOW_NONE), activeWindow()}) {
        if (heir != XCB_WINDOW_NONE && setFocus(heir))
            return;
    }
    setFocus(XCB_INPUT_FOCUS_POINTER_ROOT);
}

xcb_window_t X11PanelWindows::focusedWindow() const {
    xcb_connection_t *const xcb = m_connection->xcb();
    const X11Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

xcb_window_t X11PanelWindows::activeWindow() const {
    return m_connection->rootValue(m_activeWindowAtom, XCB_ATOM_WINDOW).value_or(XCB_WINDOW_NONE);
}

bool X11PanelWindows::setFocus(xcb_window_t window) {
    xcb_connection_t *const xcb = m_connection->xcb();
    const X11Reply<xcb_generic_error_t> error(xcb_request_check(
        xcb, xcb_set_input_focus_checked(xcb, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME)));
    return error == nullptr;
}

} // namespace tembra
