#pragma once

#include "platform/linux/tools/RcFilePreferences.h"

namespace tembra {

// The file "ksnip/ksnip.conf". Without a setting ksnip saves into the home folder.
class KsnipPreferences final : public RcFilePreferences {
public:
    KsnipPreferences(QString path, StandardFolders folders)
        : RcFilePreferences(std::move(path), std::move(folders)) {}

    [[nodiscard]] std::optional<QString> location() const override;
    [[nodiscard]] std::optional<QString> target() const override;
    [[nodiscard]] std::optional<QString> name() const override;
    void setLocation(const std::optional<QString> &path) override;
    void setTarget(const std::optional<QString> &target) override;
    [[nodiscard]] QString toolName() const override { return QStringLiteral("ksnip"); }
};

} // namespace tembra
