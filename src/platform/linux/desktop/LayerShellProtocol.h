#pragma once

#include "platform/linux/desktop/WaylandRequests.h"

struct wl_output;
struct wl_surface;

namespace tembra {

// "wlr-layer-shell-unstable-v1": surfaces that lie at an edge of an output, over or under all windows.
namespace layer_shell {

[[nodiscard]] const wl_interface &interface();
// From this version on a surface may take the keyboard when it is clicked, and only then.
inline constexpr std::uint32_t onDemandVersion = 4;
inline constexpr std::uint32_t newestVersion = onDemandVersion;

enum class Keyboard : std::uint32_t { none = 0, exclusive = 1, onDemand = 2 };

struct Listener {
    void (*configure)(void *data, wl_proxy *surface, std::uint32_t serial, std::uint32_t width,
                      std::uint32_t height);
    // The output is gone, or the compositor does not want the surface any more.
    void (*closed)(void *data, wl_proxy *surface);
};

using Surface = std::unique_ptr<wl_proxy, DestroysByRequest<7>>;

// Over all windows, from the output's top left corner, without regard to what others reserve there.
[[nodiscard]] Surface makeOverlay(wl_proxy *shell, wl_surface *surface, wl_output *output);
// In points, relative to the output. Takes effect with the surface's next commit, as the keyboard does.
void place(wl_proxy *surface, int x, int y, int width, int height);
void setKeyboard(wl_proxy *surface, Keyboard keyboard);
void adoptPopup(wl_proxy *surface, wl_proxy *popup);
void acknowledge(wl_proxy *surface, std::uint32_t serial);

} // namespace layer_shell

} // namespace tembra
