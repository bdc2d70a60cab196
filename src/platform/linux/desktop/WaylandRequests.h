#pragma once

#include <cstdint>
#include <memory>
#include <wayland-client-core.h>

namespace tembra {

// What the tables of the Wayland protocols that we speak have in common: requests go by their number.
template <class... Arguments>
void sendRequest(wl_proxy *object, std::uint32_t request, Arguments... arguments) {
    wl_proxy_marshal_flags(object, request, nullptr, wl_proxy_get_version(object), 0, arguments...);
}

// Asks the compositor to destroy the object.
template <std::uint32_t request>
struct DestroysByRequest {
    void operator()(wl_proxy *object) const {
        wl_proxy_marshal_flags(object, request, nullptr, wl_proxy_get_version(object),
                               WL_MARSHAL_FLAG_DESTROY);
    }
};

// The listener must outlive the object.
template <class Listener>
void listenTo(wl_proxy *object, const Listener &listener, void *data) {
    auto *const functions = const_cast<Listener *>(&listener);
    wl_proxy_add_listener(object, reinterpret_cast<void (**)()>(functions), data);
}

} // namespace tembra
