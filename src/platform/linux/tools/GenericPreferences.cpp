#include "platform/linux/tools/GenericPreferences.h"

#include "platform/linux/tools/SettingsText.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tembra {

namespace {

const QByteArray group = QByteArrayLiteral("Screenshots");
const QByteArray locationKey = QByteArrayLiteral("Folder");

} // namespace

std::optional<QString> GenericPreferences::location() const {
    const auto stored = settings().value(group, locationKey);
    const auto path = stored ? folderPath(fromKConfig(*stored)) : std::nullopt;
    return path.value_or(defaultLocation());
}

QString GenericPreferences::defaultLocation() const {
    for (const QString &variable : {QStringLiteral("GRIM_DEFAULT_DIR"), QStringLiteral("HYPRSHOT_DIR")}) {
        QString folder = m_environment.value(variable);
        if (folder.startsWith(u'/'))
            return folder;
    }
    const QString usual = folders().pictures + QStringLiteral("/Screenshots");
    return QFileInfo(usual).isDir() ? usual : folders().pictures;
}

void GenericPreferences::setLocation(const std::optional<QString> &path) {
    if (!path)
        change(group, locationKey, std::nullopt);
    else if (const auto folder = absolute(*path))
        change(group, locationKey, toKConfig(*folder));
}

QString GenericPreferences::toolName() const {
    return QCoreApplication::translate("ScreenCapturePreferences", "The screenshot tool");
}

} // namespace tembra
