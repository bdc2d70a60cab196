#include "platform/linux/desktop/DataControlProtocol.h"

#include <wayland-client-protocol.h>

namespace tembra {

namespace {

template <std::size_t requests, std::size_t events>
wl_interface interface(const char *name, const std::array<wl_message, requests> &requestTable,
                       const std::array<wl_message, events> &eventTable) {
    return {name,
            1,
            static_cast<int>(requests),
            requestTable.data(),
            static_cast<int>(events),
            eventTable.data()};
}

const char *named(DataControlProtocol::Name name, const char *ext, const char *wlr) {
    return name == DataControlProtocol::Name::ext ? ext : wlr;
}

template <class Listener>
void addListener(wl_proxy *object, const Listener &listener, void *data) {
    auto *const functions = const_cast<Listener *>(&listener);
    wl_proxy_add_listener(object, reinterpret_cast<void (**)()>(functions), data);
}

} // namespace

// The order within a table is the number that goes over the wire.
DataControlProtocol::DataControlProtocol(Name name)
    : m_aDevice{&m_device, &wl_seat_interface},
      m_managerRequests{{{"create_data_source", "n", m_aSource.data()},
                         {"get_data_device", "no", m_aDevice.data()},
                         {"destroy", "", m_none.data()}}},
      m_deviceRequests{{{"set_selection", "?o", m_aSource.data()},
                        {"destroy", "", m_none.data()},
                        {"set_primary_selection", "?o", m_aSource.data()}}},
      m_deviceEvents{{{"data_offer", "n", m_anOffer.data()},
                      {"selection", "?o", m_anOffer.data()},
                      {"finished", "", m_none.data()},
                      {"primary_selection", "?o", m_anOffer.data()}}},
      m_sourceRequests{{{"offer", "s", m_none.data()}, {"destroy", "", m_none.data()}}},
      m_sourceEvents{{{"send", "sh", m_none.data()}, {"cancelled", "", m_none.data()}}},
      m_offerRequests{{{"receive", "sh", m_none.data()}, {"destroy", "", m_none.data()}}},
      m_offerEvents{{{"offer", "s", m_none.data()}}},
      m_manager(interface(named(name, "ext_data_control_manager_v1", "zwlr_data_control_manager_v1"),
                          m_managerRequests, std::array<wl_message, 0>())),
      m_device(interface(named(name, "ext_data_control_device_v1", "zwlr_data_control_device_v1"),
                         m_deviceRequests, m_deviceEvents)),
      m_source(interface(named(name, "ext_data_control_source_v1", "zwlr_data_control_source_v1"),
                         m_sourceRequests, m_sourceEvents)),
      m_offer(interface(named(name, "ext_data_control_offer_v1", "zwlr_data_control_offer_v1"),
                        m_offerRequests, m_offerEvents)) {}

DataControlProtocol::Device DataControlProtocol::device(wl_proxy *manager, wl_proxy *seat) const {
    return Device(
        wl_proxy_marshal_flags(manager, 1, &m_device, wl_proxy_get_version(manager), 0, nullptr, seat));
}

DataControlProtocol::Source DataControlProtocol::source(wl_proxy *manager) const {
    return Source(wl_proxy_marshal_flags(manager, 0, &m_source, wl_proxy_get_version(manager), 0, nullptr));
}

void DataControlProtocol::offer(wl_proxy *source, const char *format) {
    wl_proxy_marshal_flags(source, 0, nullptr, wl_proxy_get_version(source), 0, format);
}

void DataControlProtocol::setSelection(wl_proxy *device, wl_proxy *source) {
    wl_proxy_marshal_flags(device, 0, nullptr, wl_proxy_get_version(device), 0, source);
}

void DataControlProtocol::listen(wl_proxy *device, const DeviceListener &listener, void *data) {
    addListener(device, listener, data);
}

void DataControlProtocol::listen(wl_proxy *source, const SourceListener &listener, void *data) {
    addListener(source, listener, data);
}

} // namespace tembra
