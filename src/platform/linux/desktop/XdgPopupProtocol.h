#pragma once

#include "platform/linux/desktop/WaylandRequests.h"

#include <QRect>

struct wl_seat;
struct wl_surface;

namespace tembra {

// The part of "xdg-shell" that is about menus and tool tips: surfaces placed relative to another one.
namespace xdg_popup {

[[nodiscard]] const wl_interface &baseInterface();
[[nodiscard]] const wl_interface &popupInterface();

struct BaseListener {
    void (*ping)(void *data, wl_proxy *base, std::uint32_t serial);
};
struct SurfaceListener {
    void (*configure)(void *data, wl_proxy *surface, std::uint32_t serial);
};
struct PopupListener {
    // Relative to the parent.
    void (*configure)(void *data, wl_proxy *popup, std::int32_t x, std::int32_t y, std::int32_t width,
                      std::int32_t height);
    // The user has clicked elsewhere.
    void (*done)(void *data, wl_proxy *popup);
};

using Base = std::unique_ptr<wl_proxy, DestroysByRequest<0>>;
using Surface = std::unique_ptr<wl_proxy, DestroysByRequest<0>>;
using Popup = std::unique_ptr<wl_proxy, DestroysByRequest<0>>;

void pong(wl_proxy *base, std::uint32_t serial);
[[nodiscard]] Surface makeSurface(wl_proxy *base, wl_surface *surface);
// Exactly there, in points relative to the parent; without a parent that surface's shell has to adopt it.
[[nodiscard]] Popup makePopup(wl_proxy *base, wl_proxy *surface, wl_proxy *parent, const QRect &place);
// Before the first commit: the popup gets all input until the user clicks elsewhere. `serial` is that of the
// press which it answers.
void grab(wl_proxy *popup, wl_seat *seat, std::uint32_t serial);
void acknowledge(wl_proxy *surface, std::uint32_t serial);

} // namespace xdg_popup

} // namespace tembra
