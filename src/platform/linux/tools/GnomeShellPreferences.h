#pragma once

#include "platform/linux/tools/ToolPreferences.h"
#include "platform/linux/tools/Translations.h"

namespace tembra {

// The tool built into GNOME Shell, which has a folder of its own in the Pictures folder, named in the
// language of the session, and no settings.
class GnomeShellPreferences final : public ToolPreferences {
public:
    explicit GnomeShellPreferences(StandardFolders folders, Translations translations = installedTranslation)
        : ToolPreferences(std::move(folders)), m_translations(std::move(translations)) {}

    [[nodiscard]] std::optional<QString> location() const override;
    [[nodiscard]] std::optional<QString> name() const override;
    void setLocation(const std::optional<QString> &) override {}
    void synchronize() override {}
    [[nodiscard]] QString toolName() const override { return QStringLiteral("GNOME Shell"); }

private:
    const Translations m_translations;
};

} // namespace tembra
