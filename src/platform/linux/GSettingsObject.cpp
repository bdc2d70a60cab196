#include "platform/linux/GSettingsObject.h"

#include <algorithm>

namespace tembra {

namespace {

// The session's database connects to the message bus, and GIO would end the process when the bus does.
void outliveMessageBus() {
    const auto keepRunning = [](GObject *, GAsyncResult *result, gpointer) {
        if (GDBusConnection *const bus = g_bus_get_finish(result, nullptr)) {
            g_dbus_connection_set_exit_on_close(bus, FALSE);
            g_object_unref(bus);
        }
    };
    g_bus_get(G_BUS_TYPE_SESSION, nullptr, keepRunning, nullptr);
}

} // namespace

GSettingsObject openGSettings(const char *schemaName, std::initializer_list<const char *> keys,
                              GSettingsBackend *backend) {
    GSettingsSchemaSource *const source = g_settings_schema_source_get_default();
    if (!source)
        return nullptr;
    const std::unique_ptr<GSettingsSchema, Unreferences> schema(
        g_settings_schema_source_lookup(source, schemaName, TRUE));
    const auto hasKey = [&schema](const char *key) {
        return g_settings_schema_has_key(schema.get(), key) != FALSE;
    };
    if (!schema || !std::ranges::all_of(keys, hasKey))
        return nullptr;
    if (!backend)
        outliveMessageBus();
    return GSettingsObject(g_settings_new_full(schema.get(), backend, nullptr));
}

} // namespace tembra
