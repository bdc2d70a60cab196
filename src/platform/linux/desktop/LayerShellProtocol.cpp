#include "platform/linux/desktop/LayerShellProtocol.h"

#include "platform/linux/desktop/XdgPopupProtocol.h"

#include <iterator>
#include <wayland-client-protocol.h>

namespace tembra::layer_shell {

namespace {

constexpr std::uint32_t overlayLayer = 3;
constexpr std::uint32_t topAndLeft = 1 | 4;

const wl_interface *noTypes[4]{};
const wl_interface *popupTypes[] = {&xdg_popup::popupInterface()};

// The order within a table is the number that goes over the wire.
const wl_message surfaceRequests[] = {{"set_size", "uu", noTypes},
                                      {"set_anchor", "u", noTypes},
                                      {"set_exclusive_zone", "i", noTypes},
                                      {"set_margin", "iiii", noTypes},
                                      {"set_keyboard_interactivity", "u", noTypes},
                                      {"get_popup", "o", popupTypes},
                                      {"ack_configure", "u", noTypes},
                                      {"destroy", "", noTypes}};
const wl_message surfaceEvents[] = {{"configure", "uuu", noTypes}, {"closed", "", noTypes}};
const wl_interface surfaceInterface{"zwlr_layer_surface_v1",    newestVersion,
                                    std::size(surfaceRequests), surfaceRequests,
                                    std::size(surfaceEvents),   surfaceEvents};

const wl_interface *surfaceTypes[] = {&surfaceInterface, &wl_surface_interface, &wl_output_interface, nullptr,
                                      nullptr};
const wl_message shellRequests[] = {{"get_layer_surface", "no?ous", surfaceTypes}, {"destroy", "3", noTypes}};
const wl_interface shellInterface{
    "zwlr_layer_shell_v1", newestVersion, std::size(shellRequests), shellRequests, 0, nullptr};

} // namespace

const wl_interface &interface() {
    return shellInterface;
}

Surface makeOverlay(wl_proxy *shell, wl_surface *surface, wl_output *output) {
    constexpr std::int32_t regardlessOfOthers = -1;
    Surface made(wl_proxy_marshal_flags(shell, 0, &surfaceInterface, wl_proxy_get_version(shell), 0, nullptr,
                                        surface, output, overlayLayer, "tembra"));
    sendRequest(made.get(), 1, topAndLeft);
    sendRequest(made.get(), 2, regardlessOfOthers);
    return made;
}

void place(wl_proxy *surface, int x, int y, int width, int height) {
    sendRequest(surface, 0, static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height));
    sendRequest(surface, 3, std::int32_t{y}, std::int32_t{0}, std::int32_t{0}, std::int32_t{x});
}

void setKeyboard(wl_proxy *surface, Keyboard keyboard) {
    const bool isTooNew = keyboard == Keyboard::onDemand && wl_proxy_get_version(surface) < onDemandVersion;
    sendRequest(surface, 4, static_cast<std::uint32_t>(isTooNew ? Keyboard::exclusive : keyboard));
}

void adoptPopup(wl_proxy *surface, wl_proxy *popup) {
    sendRequest(surface, 5, popup);
}

void acknowledge(wl_proxy *surface, std::uint32_t serial) {
    sendRequest(surface, 6, serial);
}

} // namespace tembra::layer_shell
