#pragma once

#include "platform/linux/tools/RcFilePreferences.h"

#include <QProcessEnvironment>

namespace tembra {

// Tools that keep no settings, such as those that a bare window manager's keys call. The folder is then the
// program's own choice, which it keeps itself.
class GenericPreferences final : public RcFilePreferences {
public:
    GenericPreferences(QString path, StandardFolders folders, const QProcessEnvironment &environment)
        : RcFilePreferences(std::move(path), std::move(folders)), m_environment(environment) {}

    [[nodiscard]] std::optional<QString> location() const override;
    void setLocation(const std::optional<QString> &path) override;
    [[nodiscard]] bool isToolKnown() const override { return false; }
    [[nodiscard]] QString toolName() const override;

private:
    [[nodiscard]] QString defaultLocation() const;

    const QProcessEnvironment m_environment;
};

} // namespace tembra
