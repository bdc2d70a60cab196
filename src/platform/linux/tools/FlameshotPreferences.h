#pragma once

#include "platform/linux/tools/RcFilePreferences.h"

namespace tembra {

// The file "flameshot/flameshot.ini".
class FlameshotPreferences final : public RcFilePreferences {
public:
    FlameshotPreferences(QString path, StandardFolders folders)
        : RcFilePreferences(std::move(path), std::move(folders)) {}

    [[nodiscard]] std::optional<QString> location() const override;
    [[nodiscard]] std::optional<QString> name() const override;
    void setLocation(const std::optional<QString> &path) override;
    [[nodiscard]] QString toolName() const override { return QStringLiteral("Flameshot"); }
};

} // namespace tembra
