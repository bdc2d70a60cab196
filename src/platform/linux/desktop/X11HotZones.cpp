#include "platform/linux/desktop/X11HotZones.h"

#include "platform/linux/desktop/X11Coordinates.h"

#include <array>

namespace tembra {

namespace {

class X11HotZone final : public HotZones::Zone {
public:
    X11HotZone(std::shared_ptr<X11Connection> connection, std::shared_ptr<X11Stacking> stacking,
               const ScreenRect &rect, HotZones::Callbacks callbacks)
        : m_connection(std::move(connection)),
          m_stacking(std::move(stacking)),
          m_callbacks(std::move(callbacks)),
          m_window(xcb_generate_id(m_connection->xcb())) {
        createWindow(rect);
        m_events = m_connection->subscribe([this](const xcb_generic_event_t &event) { receive(event); });
        m_stacking->addZone(m_window);
    }

    ~X11HotZone() override {
        m_stacking->removeZone(m_window);
        xcb_destroy_window(m_connection->xcb(), m_window);
        xcb_flush(m_connection->xcb());
    }

    void setRect(const ScreenRect &rect) override {
        const QRect pixels = nativePixels(rect);
        const std::array<std::uint32_t, 4> geometry{static_cast<std::uint32_t>(pixels.x()),
                                                    static_cast<std::uint32_t>(pixels.y()),
                                                    static_cast<std::uint32_t>(std::max(1, pixels.width())),
                                                    static_cast<std::uint32_t>(std::max(1, pixels.height()))};
        xcb_configure_window(m_connection->xcb(), m_window,
                             XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                                 XCB_CONFIG_WINDOW_HEIGHT,
                             geometry.data());
        xcb_flush(m_connection->xcb());
    }

private:
    void createWindow(const ScreenRect &rect) {
        const QRect pixels = nativePixels(rect);
        const std::array<std::uint32_t, 2> values{
            1, XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW | XCB_EVENT_MASK_BUTTON_PRESS};
        xcb_create_window(m_connection->xcb(), XCB_COPY_FROM_PARENT, m_window, m_connection->root(),
                          static_cast<std::int16_t>(pixels.x()), static_cast<std::int16_t>(pixels.y()),
                          static_cast<std::uint16_t>(std::max(1, pixels.width())),
                          static_cast<std::uint16_t>(std::max(1, pixels.height())), 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                          XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
        xcb_map_window(m_connection->xcb(), m_window);
        xcb_flush(m_connection->xcb());
    }

    // The callback may drop the zone: it runs from a copy and nothing of the zone is touched after it.
    void receive(const xcb_generic_event_t &event) {
        std::function<void()> callback;
        switch (event.response_type & 0x7f) {
        case XCB_ENTER_NOTIFY:
            if (reinterpret_cast<const xcb_enter_notify_event_t &>(event).event == m_window)
                callback = m_callbacks.onEnter;
            break;
        case XCB_LEAVE_NOTIFY:
            if (reinterpret_cast<const xcb_leave_notify_event_t &>(event).event == m_window)
                callback = m_callbacks.onLeave;
            break;
        case XCB_BUTTON_PRESS: {
            const auto &press = reinterpret_cast<const xcb_button_press_event_t &>(event);
            if (press.event == m_window && press.detail == XCB_BUTTON_INDEX_1)
                callback = m_callbacks.onPress;
            break;
        }
        default:
            break;
        }
        if (callback)
            callback();
    }

    const std::shared_ptr<X11Connection> m_connection;
    const std::shared_ptr<X11Stacking> m_stacking;
    const HotZones::Callbacks m_callbacks;
    const xcb_window_t m_window;
    std::unique_ptr<X11Connection::Subscription> m_events;
};

} // namespace

X11HotZones::X11HotZones(std::shared_ptr<X11Connection> connection, std::shared_ptr<X11Stacking> stacking)
    : m_connection(std::move(connection)), m_stacking(std::move(stacking)) {}

std::unique_ptr<HotZones::Zone> X11HotZones::add(const ScreenRect &rect, Callbacks callbacks) {
    return std::make_unique<X11HotZone>(m_connection, m_stacking, rect, std::move(callbacks));
}

} // namespace tembra
