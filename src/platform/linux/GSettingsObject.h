#pragma once

#include <gio/gio.h>

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
[[nodiscard]] GSettingsObject openGSettings(const char *schemaName, std::initializer_list<const char *> keys,
                                            GSettingsBackend *backend = nullptr);

} // namespace tembra
