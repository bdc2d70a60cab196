#include "platform/linux/tools/GnomeScreenshotPreferences.h"

#include "platform/linux/tools/SettingsText.h"

#include <gio/gio.h>

namespace tembra {

namespace {

constexpr char schemaName[] = "org.gnome.gnome-screenshot";
constexpr char locationKey[] = "auto-save-directory";

struct Unreferences {
    void operator()(GSettings *settings) const { g_object_unref(settings); }
    void operator()(GSettingsSchema *schema) const { g_settings_schema_unref(schema); }
};

using Schema = std::unique_ptr<GSettingsSchema, Unreferences>;

} // namespace

struct GnomeScreenshotPreferences::Settings {
    std::unique_ptr<GSettings, Unreferences> object;

    // Asking for a schema that is not there, or for a key that it does not have, would end the process.
    static std::unique_ptr<Settings> open(GSettingsBackend *backend) {
        GSettingsSchemaSource *source = g_settings_schema_source_get_default();
        if (!source)
            return nullptr;
        const Schema schema(g_settings_schema_source_lookup(source, schemaName, TRUE));
        if (!schema || !g_settings_schema_has_key(schema.get(), locationKey))
            return nullptr;
        auto settings = std::make_unique<Settings>();
        settings->object.reset(g_settings_new_full(schema.get(), backend, nullptr));
        return settings;
    }
};

GnomeScreenshotPreferences::GnomeScreenshotPreferences(StandardFolders folders, Translations translations,
                                                       GSettingsBackend *backend)
    : ToolPreferences(std::move(folders)),
      m_translations(std::move(translations)),
      m_settings(Settings::open(backend)) {}

GnomeScreenshotPreferences::~GnomeScreenshotPreferences() = default;

std::optional<QString> GnomeScreenshotPreferences::location() const {
    if (!m_settings)
        return folders().pictures;
    const std::unique_ptr<char, void (*)(void *)> stored(
        g_settings_get_string(m_settings->object.get(), locationKey), g_free);
    return folderPath(QString::fromUtf8(stored.get())).value_or(folders().pictures);
}

std::optional<QString> GnomeScreenshotPreferences::name() const {
    constexpr char text[] = "Screenshot from %s.%s";
    const QString translated = m_translations("gnome-screenshot", text);
    return translated == QLatin1StringView(text) ? std::nullopt : fixedBeginning(translated, u'%');
}

void GnomeScreenshotPreferences::setLocation(const std::optional<QString> &path) {
    if (!m_settings || !g_settings_is_writable(m_settings->object.get(), locationKey))
        return;
    if (!path)
        g_settings_reset(m_settings->object.get(), locationKey);
    else if (const auto folder = absolute(*path))
        g_settings_set_string(m_settings->object.get(), locationKey, folderUri(*folder).constData());
}

void GnomeScreenshotPreferences::synchronize() {
    if (m_settings)
        g_settings_sync();
}

} // namespace tembra
