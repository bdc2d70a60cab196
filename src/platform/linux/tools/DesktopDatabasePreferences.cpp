#include "platform/linux/tools/DesktopDatabasePreferences.h"

#include "platform/linux/GSettingsObject.h"
#include "platform/linux/tools/SettingsText.h"

namespace tembra {

const DesktopDatabaseTool gnomeScreenshotTool{"GNOME Screenshot",    "org.gnome.gnome-screenshot",
                                              "auto-save-directory", &StandardFolders::pictures,
                                              "gnome-screenshot",    "Screenshot from %s.%s"};
const DesktopDatabaseTool mateScreenshotTool{"MATE Screenshot",     "org.mate.screenshot",
                                             "last-save-directory", &StandardFolders::desktop,
                                             "mate-utils",          "Screenshot at %s.png"};

struct DesktopDatabasePreferences::Settings {
    GSettingsObject object;

    static std::unique_ptr<Settings> open(const DesktopDatabaseTool &tool, GSettingsBackend *backend) {
        GSettingsObject object = openGSettings(tool.schema, {tool.locationKey}, backend);
        return object ? std::unique_ptr<Settings>(new Settings{std::move(object)}) : nullptr;
    }
};

DesktopDatabasePreferences::DesktopDatabasePreferences(const DesktopDatabaseTool &tool,
                                                       StandardFolders folders, Translations translations,
                                                       GSettingsBackend *backend)
    : ToolPreferences(std::move(folders)),
      m_tool(tool),
      m_translations(std::move(translations)),
      m_settings(Settings::open(tool, backend)) {}

DesktopDatabasePreferences::~DesktopDatabasePreferences() = default;

std::optional<QString> DesktopDatabasePreferences::location() const {
    const QString usual = folders().*m_tool.usualFolder;
    if (!m_settings)
        return usual;
    const std::unique_ptr<char, void (*)(void *)> stored(
        g_settings_get_string(m_settings->object.get(), m_tool.locationKey), g_free);
    return folderPath(QString::fromUtf8(stored.get())).value_or(usual);
}

std::optional<QString> DesktopDatabasePreferences::name() const {
    const QString translated = m_translations(m_tool.catalogue, m_tool.nameTemplate);
    return translated == QLatin1StringView(m_tool.nameTemplate) ? std::nullopt
                                                                : fixedBeginning(translated, u'%');
}

void DesktopDatabasePreferences::setLocation(const std::optional<QString> &path) {
    if (!m_settings || !g_settings_is_writable(m_settings->object.get(), m_tool.locationKey))
        return;
    if (!path)
        g_settings_reset(m_settings->object.get(), m_tool.locationKey);
    else if (const auto folder = absolute(*path))
        g_settings_set_string(m_settings->object.get(), m_tool.locationKey, folderUri(*folder).constData());
}

void DesktopDatabasePreferences::synchronize() {
    if (m_settings)
        g_settings_sync();
}

} // namespace tembra
