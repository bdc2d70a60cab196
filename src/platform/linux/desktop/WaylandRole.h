#pragma once

#include "platform/linux/desktop/LayerShellProtocol.h"
#include "platform/linux/desktop/WaylandDisplay.h"

#include <QRect>

#include <functional>
#include <memory>

namespace tembra {

// What the surface of a window is to the compositor: something at an edge of an output, or a menu or tool tip
// of such a thing. Made before the window draws into the surface, and gone before the surface is. Main
// thread.
class WaylandRole {
public:
    virtual ~WaylandRole() = default;
    WaylandRole(const WaylandRole &) = delete;
    WaylandRole &operator=(const WaylandRole &) = delete;

    // The compositor has taken it away: the output is gone, or the user has clicked elsewhere. May drop it.
    std::function<void()> onClosed;

    // The compositor has said that it may be drawn.
    [[nodiscard]] bool isReady() const { return m_isReady; }
    // The window was moved or resized, in points relative to the output or to the parent.
    virtual void place(const QRect &place) = 0;
    virtual void setKeyboard(layer_shell::Keyboard) {}
    // How a popup has this for its parent: the parent it names, and who adopts it when it names none.
    [[nodiscard]] virtual wl_proxy *popupParent() const { return nullptr; }
    virtual void adopt(wl_proxy *) {}

protected:
    WaylandRole() = default;
    // Commits the surface and waits until the compositor answers, which it does at once; `objects` are those
    // whose events are told meanwhile.
    void awaitAnswer(wl_display *display, wl_event_queue *queue, wl_surface *surface,
                     std::initializer_list<wl_proxy *> objects);
    void setReady() { m_isReady = true; }
    void close();

private:
    bool m_isReady = false;
};

// `place` is relative to the output.
[[nodiscard]] std::unique_ptr<WaylandRole> makeLayerRole(const WaylandDisplay &display, wl_surface *surface,
                                                         wl_output *output, const QRect &place,
                                                         layer_shell::Keyboard keyboard);
// `place` is relative to the parent's surface. A menu takes the input until the user clicks elsewhere.
[[nodiscard]] std::unique_ptr<WaylandRole> makePopupRole(const WaylandDisplay &display, wl_surface *surface,
                                                         WaylandRole &parent, const QRect &place,
                                                         bool isMenu);

} // namespace tembra
