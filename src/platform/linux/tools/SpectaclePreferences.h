#pragma once

#include "platform/linux/tools/RcFilePreferences.h"

#include <QProcessEnvironment>

namespace tembra {

// Spectacle's "spectaclerc", in the two forms that it has had: version 24 moved the settings of pictures into
// a group of their own and gave them other names.
class SpectaclePreferences final : public RcFilePreferences {
public:
    // `installedVersion` is the tool's major version, 0 when it is not known; it decides about a file that
    // has the settings of neither or of both forms.
    SpectaclePreferences(QString path, StandardFolders folders, const QProcessEnvironment &environment,
                         int installedVersion);

    [[nodiscard]] std::optional<QString> location() const override;
    [[nodiscard]] std::optional<QString> target() const override;
    [[nodiscard]] std::optional<QString> name() const override;
    void setLocation(const std::optional<QString> &path) override;
    void setTarget(const std::optional<QString> &target) override;
    [[nodiscard]] QString toolName() const override { return QStringLiteral("Spectacle"); }

    // The major version that the tool's description in one of the data folders tells; 0 without one.
    [[nodiscard]] static int installedVersion(const QStringList &dataFolders);

private:
    struct Form;

    [[nodiscard]] const Form &form(const RcFile &file) const;
    [[nodiscard]] QString defaultLocation(const RcFile &file) const;
    [[nodiscard]] std::optional<QString> text(const RcFile &file, const QByteArray &group,
                                              const QByteArray &key) const;
    // Leaves alone what the administrator has locked.
    void changeUnlocked(const QByteArray &group, const QByteArray &key,
                        const std::optional<QByteArray> &value);

    const QProcessEnvironment m_environment;
    const int m_installedVersion;
};

} // namespace tembra
