#pragma once

#include <gio/gio.h>

#include <algorithm>
#include <initializer_list>
#include <memory>

namespace tembra {

struct Unreferences {
    void operator()(GSettings *settings) const { g_object_unref(settings); }
    void operator()(GSettingsSchema *schema) const { g_settings_schema_unref(schema); }
};

using GSettingsObject = std::unique_ptr<GSettings, Unreferences>;

// Nothing where the schema is not installed or lacks one of the keys: asking for one that is not there would
// end the process. Without a backend, the session's own database.
[[nodiscard]] inline GSettingsObject openGSettings(const char *schemaName,
                                                   std::initializer_list<const char *> keys,
                                                   GSettingsBackend *backend = nullptr) {
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
    return GSettingsObject(g_settings_new_full(schema.get(), backend, nullptr));
}

} // namespace tembra
