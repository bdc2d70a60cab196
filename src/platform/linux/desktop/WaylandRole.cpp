#include "platform/linux/desktop/WaylandRole.h"

#include <wayland-client.h>

namespace tembra {

namespace {

// Compositors answer in their next idle moment.
constexpr int mostTries = 20;

class EventQueue {
public:
    explicit EventQueue(wl_display *display) : m_queue(wl_display_create_queue(display)) {}
    ~EventQueue() { wl_event_queue_destroy(m_queue); }
    EventQueue(const EventQueue &) = delete;
    EventQueue &operator=(const EventQueue &) = delete;

    [[nodiscard]] wl_event_queue *get() const { return m_queue; }

private:
    wl_event_queue *const m_queue;
};

// Through it are made objects whose events wait in a queue from the beginning.
class Factory {
public:
    Factory(wl_proxy *object, const EventQueue &queue)
        : m_wrapper(static_cast<wl_proxy *>(wl_proxy_create_wrapper(object))) {
        wl_proxy_set_queue(m_wrapper, queue.get());
    }
    ~Factory() { wl_proxy_wrapper_destroy(m_wrapper); }
    Factory(const Factory &) = delete;
    Factory &operator=(const Factory &) = delete;

    [[nodiscard]] wl_proxy *get() const { return m_wrapper; }

private:
    wl_proxy *const m_wrapper;
};

class LayerRole final : public WaylandRole {
public:
    LayerRole(const WaylandDisplay &display, wl_surface *surface, wl_output *output, const QRect &place,
              layer_shell::Keyboard keyboard)
        : m_wlSurface(surface) {
        const EventQueue queue(display.connection());
        const Factory shell(display.layerShell(), queue);
        m_surface = layer_shell::makeOverlay(shell.get(), surface, output);
        static const layer_shell::Listener listener{
            [](void *self, wl_proxy *object, std::uint32_t serial, std::uint32_t, std::uint32_t) {
                layer_shell::acknowledge(object, serial);
                static_cast<LayerRole *>(self)->setReady();
            },
            [](void *self, wl_proxy *) { static_cast<LayerRole *>(self)->close(); }};
        listenTo(m_surface.get(), listener, this);
        layer_shell::place(m_surface.get(), place.x(), place.y(), place.width(), place.height());
        layer_shell::setKeyboard(m_surface.get(), keyboard);
        awaitAnswer(display.connection(), queue.get(), surface, {m_surface.get()});
    }

    void place(const QRect &place) override {
        layer_shell::place(m_surface.get(), place.x(), place.y(), place.width(), place.height());
        wl_surface_commit(m_wlSurface);
    }

    void setKeyboard(layer_shell::Keyboard keyboard) override {
        layer_shell::setKeyboard(m_surface.get(), keyboard);
        wl_surface_commit(m_wlSurface);
    }

    void adopt(wl_proxy *popup) override { layer_shell::adoptPopup(m_surface.get(), popup); }

private:
    wl_surface *const m_wlSurface;
    layer_shell::Surface m_surface;
};

class PopupRole final : public WaylandRole {
public:
    PopupRole(const WaylandDisplay &display, wl_surface *surface, WaylandRole &parent, const QRect &place,
              bool isMenu) {
        const EventQueue queue(display.connection());
        const Factory base(display.popups(), queue);
        m_surface = xdg_popup::makeSurface(base.get(), surface);
        listenToSurface();
        m_popup = xdg_popup::makePopup(base.get(), m_surface.get(), parent.popupParent(), place);
        listenToPopup();
        parent.adopt(m_popup.get());
        if (isMenu && display.seat() && display.pressSerial() != 0)
            xdg_popup::grab(m_popup.get(), display.seat(), display.pressSerial());
        awaitAnswer(display.connection(), queue.get(), surface, {m_surface.get(), m_popup.get()});
    }

    // Menus stay where they are.
    void place(const QRect &) override {}
    [[nodiscard]] wl_proxy *popupParent() const override { return m_surface.get(); }

private:
    void listenToSurface() {
        static const xdg_popup::SurfaceListener listener{
            [](void *self, wl_proxy *surface, std::uint32_t serial) {
                xdg_popup::acknowledge(surface, serial);
                static_cast<PopupRole *>(self)->setReady();
            }};
        listenTo(m_surface.get(), listener, this);
    }

    void listenToPopup() {
        static const xdg_popup::PopupListener listener{
            [](void *, wl_proxy *, std::int32_t, std::int32_t, std::int32_t, std::int32_t) {},
            [](void *self, wl_proxy *) { static_cast<PopupRole *>(self)->close(); }};
        listenTo(m_popup.get(), listener, this);
    }

    // The popup goes first.
    xdg_popup::Surface m_surface;
    xdg_popup::Popup m_popup;
};

} // namespace

// Whoever hears of it may drop the role.
void WaylandRole::close() {
    m_isReady = false;
    if (const auto tell = onClosed)
        tell();
}

void WaylandRole::awaitAnswer(wl_display *display, wl_event_queue *queue, wl_surface *surface,
                              std::initializer_list<wl_proxy *> objects) {
    wl_surface_commit(surface);
    for (int tries = 0; !m_isReady && tries < mostTries; ++tries) {
        if (wl_display_roundtrip_queue(display, queue) < 0)
            break;
    }
    for (wl_proxy *const object : objects)
        wl_proxy_set_queue(object, nullptr);
    // What came in the meantime.
    wl_display_dispatch_queue_pending(display, queue);
}

std::unique_ptr<WaylandRole> makeLayerRole(const WaylandDisplay &display, wl_surface *surface,
                                           wl_output *output, const QRect &place,
                                           layer_shell::Keyboard keyboard) {
    return std::make_unique<LayerRole>(display, surface, output, place, keyboard);
}

std::unique_ptr<WaylandRole> makePopupRole(const WaylandDisplay &display, wl_surface *surface,
                                           WaylandRole &parent, const QRect &place, bool isMenu) {
    return std::make_unique<PopupRole>(display, surface, parent, place, isMenu);
}

} // namespace tembra
