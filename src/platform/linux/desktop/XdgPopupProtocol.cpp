#include "platform/linux/desktop/XdgPopupProtocol.h"

#include <iterator>
#include <wayland-client-protocol.h>

namespace tembra::xdg_popup {

namespace {

constexpr std::uint32_t topLeft = 5;
constexpr std::uint32_t bottomRight = 8;

extern const wl_interface baseTable;
extern const wl_interface positionerTable;
extern const wl_interface surfaceTable;
extern const wl_interface popupTable;

const wl_interface *noTypes[4]{};
const wl_interface *positionerTypes[] = {&positionerTable};
const wl_interface *surfaceTypes[] = {&surfaceTable, &wl_surface_interface};
const wl_interface *popupTypes[] = {&popupTable, &surfaceTable, &positionerTable};
const wl_interface *seatTypes[] = {&wl_seat_interface, nullptr};

// The order within a table is the number that goes over the wire.
const wl_message baseRequests[] = {{"destroy", "", noTypes},
                                   {"create_positioner", "n", positionerTypes},
                                   {"get_xdg_surface", "no", surfaceTypes},
                                   {"pong", "u", noTypes}};
const wl_message baseEvents[] = {{"ping", "u", noTypes}};
const wl_message positionerRequests[] = {{"destroy", "", noTypes},
                                         {"set_size", "ii", noTypes},
                                         {"set_anchor_rect", "iiii", noTypes},
                                         {"set_anchor", "u", noTypes},
                                         {"set_gravity", "u", noTypes}};
const wl_message surfaceRequests[] = {{"destroy", "", noTypes},
                                      {"get_toplevel", "n", noTypes},
                                      {"get_popup", "n?oo", popupTypes},
                                      {"set_window_geometry", "iiii", noTypes},
                                      {"ack_configure", "u", noTypes}};
const wl_message surfaceEvents[] = {{"configure", "u", noTypes}};
const wl_message popupRequests[] = {{"destroy", "", noTypes}, {"grab", "ou", seatTypes}};
const wl_message popupEvents[] = {{"configure", "iiii", noTypes}, {"popup_done", "", noTypes}};

template <std::size_t requests, std::size_t events>
constexpr wl_interface table(const char *name, const wl_message (&requestTable)[requests],
                             const wl_message (&eventTable)[events]) {
    return {name, 1, requests, requestTable, events, eventTable};
}

const wl_interface baseTable = table("xdg_wm_base", baseRequests, baseEvents);
const wl_interface positionerTable{"xdg_positioner",   1, std::size(positionerRequests),
                                   positionerRequests, 0, nullptr};
const wl_interface surfaceTable = table("xdg_surface", surfaceRequests, surfaceEvents);
const wl_interface popupTable = table("xdg_popup", popupRequests, popupEvents);

} // namespace

const wl_interface &baseInterface() {
    return baseTable;
}

const wl_interface &popupInterface() {
    return popupTable;
}

void pong(wl_proxy *base, std::uint32_t serial) {
    sendRequest(base, 3, serial);
}

Surface makeSurface(wl_proxy *base, wl_surface *surface) {
    return Surface(
        wl_proxy_marshal_flags(base, 2, &surfaceTable, wl_proxy_get_version(base), 0, nullptr, surface));
}

Popup makePopup(wl_proxy *base, wl_proxy *surface, wl_proxy *parent, const QRect &place) {
    constexpr std::int32_t one = 1;
    const std::unique_ptr<wl_proxy, DestroysByRequest<0>> positioner(
        wl_proxy_marshal_flags(base, 1, &positionerTable, wl_proxy_get_version(base), 0, nullptr));
    sendRequest(positioner.get(), 1, std::int32_t{place.width()}, std::int32_t{place.height()});
    sendRequest(positioner.get(), 2, std::int32_t{place.x()}, std::int32_t{place.y()}, one, one);
    sendRequest(positioner.get(), 3, topLeft);
    sendRequest(positioner.get(), 4, bottomRight);
    return Popup(wl_proxy_marshal_flags(surface, 2, &popupTable, wl_proxy_get_version(surface), 0, nullptr,
                                        parent, positioner.get()));
}

void grab(wl_proxy *popup, wl_seat *seat, std::uint32_t serial) {
    sendRequest(popup, 1, seat, serial);
}

void acknowledge(wl_proxy *surface, std::uint32_t serial) {
    sendRequest(surface, 4, serial);
}

} // namespace tembra::xdg_popup
