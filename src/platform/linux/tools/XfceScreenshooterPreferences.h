#pragma once

#include "platform/linux/tools/RcFilePreferences.h"
#include "platform/linux/tools/Translations.h"

namespace tembra {

// The file "xfce4/xfce4-screenshooter", which has no groups.
class XfceScreenshooterPreferences final : public RcFilePreferences {
public:
    XfceScreenshooterPreferences(QString path, StandardFolders folders,
                                 Translations translations = installedTranslation)
        : RcFilePreferences(std::move(path), std::move(folders)), m_translations(std::move(translations)) {}

    [[nodiscard]] std::optional<QString> location() const override;
    [[nodiscard]] std::optional<QString> target() const override;
    [[nodiscard]] std::optional<QString> name() const override;
    void setLocation(const std::optional<QString> &path) override;
    void setTarget(const std::optional<QString> &target) override;
    [[nodiscard]] QString toolName() const override { return QStringLiteral("Xfce Screenshooter"); }

private:
    // What the tool does with a capture, a sum of bits; nothing when the file does not say.
    [[nodiscard]] std::optional<int> action() const;

    const Translations m_translations;
};

} // namespace tembra
