#pragma once

#include "platform/linux/tools/ToolPreferences.h"
#include "platform/linux/tools/Translations.h"

#include <memory>

using GSettingsBackend = struct _GSettingsBackend;

namespace tembra {

// gnome-screenshot, the tool of Cinnamon, MATE and Budgie, whose settings are in the desktop's settings
// database. Where its schema is not installed there is nothing to read and nothing is written.
class GnomeScreenshotPreferences final : public ToolPreferences {
public:
    // Without a backend, the session's own database.
    explicit GnomeScreenshotPreferences(StandardFolders folders,
                                        Translations translations = installedTranslation,
                                        GSettingsBackend *backend = nullptr);
    ~GnomeScreenshotPreferences() override;

    [[nodiscard]] std::optional<QString> location() const override;
    [[nodiscard]] std::optional<QString> name() const override;
    void setLocation(const std::optional<QString> &path) override;
    void synchronize() override;
    [[nodiscard]] QString toolName() const override { return QStringLiteral("GNOME Screenshot"); }

private:
    struct Settings;

    const Translations m_translations;
    // Nothing without the schema.
    const std::unique_ptr<Settings> m_settings;
};

} // namespace tembra
