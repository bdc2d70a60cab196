#pragma once

#include <array>
#include <memory>
#include <wayland-client-core.h>

namespace tembra {

// The Wayland protocol through which a program without a window owns the clipboard. It has two names for one
// form: "ext-data-control-v1" and, older, "wlr-data-control-unstable-v1".
class DataControlProtocol {
public:
    enum class Name { ext, wlr };

    explicit DataControlProtocol(Name name);
    DataControlProtocol(const DataControlProtocol &) = delete;
    DataControlProtocol &operator=(const DataControlProtocol &) = delete;

    [[nodiscard]] const wl_interface &manager() const { return m_manager; }

    // Asks the compositor to destroy the object.
    template <std::uint32_t request>
    struct Destroys {
        void operator()(wl_proxy *object) const {
            wl_proxy_marshal_flags(object, request, nullptr, wl_proxy_get_version(object),
                                   WL_MARSHAL_FLAG_DESTROY);
        }
    };
    using Manager = std::unique_ptr<wl_proxy, Destroys<2>>;
    using Device = std::unique_ptr<wl_proxy, Destroys<1>>;
    using Source = std::unique_ptr<wl_proxy, Destroys<1>>;
    using Offer = std::unique_ptr<wl_proxy, Destroys<1>>;

    [[nodiscard]] Device device(wl_proxy *manager, wl_proxy *seat) const;
    [[nodiscard]] Source source(wl_proxy *manager) const;
    static void offer(wl_proxy *source, const char *format);
    static void setSelection(wl_proxy *device, wl_proxy *source);

    struct DeviceListener {
        void (*dataOffer)(void *data, wl_proxy *device, wl_proxy *offer);
        // The offer, if any, is now the receiver's to destroy; so is that of the primary selection.
        void (*selection)(void *data, wl_proxy *device, wl_proxy *offer);
        void (*finished)(void *data, wl_proxy *device);
        void (*primarySelection)(void *data, wl_proxy *device, wl_proxy *offer);
    };
    struct SourceListener {
        // The descriptor is the receiver's to close.
        void (*send)(void *data, wl_proxy *source, const char *format, int descriptor);
        void (*cancelled)(void *data, wl_proxy *source);
    };
    static void listen(wl_proxy *device, const DeviceListener &listener, void *data);
    static void listen(wl_proxy *source, const SourceListener &listener, void *data);

private:
    using Types = std::array<const wl_interface *, 2>;

    Types m_none{};
    Types m_aSource{&m_source};
    Types m_anOffer{&m_offer};
    Types m_aDevice;
    const std::array<wl_message, 3> m_managerRequests;
    const std::array<wl_message, 3> m_deviceRequests;
    const std::array<wl_message, 4> m_deviceEvents;
    const std::array<wl_message, 2> m_sourceRequests;
    const std::array<wl_message, 2> m_sourceEvents;
    const std::array<wl_message, 2> m_offerRequests;
    const std::array<wl_message, 1> m_offerEvents;
    const wl_interface m_manager;
    const wl_interface m_device;
    const wl_interface m_source;
    const wl_interface m_offer;
};

} // namespace tembra
