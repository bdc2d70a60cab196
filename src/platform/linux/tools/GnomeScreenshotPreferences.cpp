#include "platform/linux/tools/GnomeScreenshotPreferences.h"

#include "platform/linux/GSettingsObject.h"
#include "platform/linux/tools/SettingsText.h"

namespace tembra {

namespace {

constexpr char schemaName[] = "org.gnome.gnome-screenshot";
constexpr char locationKey[] = "auto-save-directory";

} // namespace

struct GnomeScreenshotPreferences::Settings {
    GSettingsObject object;

    static std::unique_ptr<Settings> open(GSettingsBackend *backend) {
        GSettingsObject object = openGSettings(schemaName, {locationKey}, backend);
        return object ? std::unique_ptr<Settings>(new Settings{std::move(object)}) : nullptr;
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
