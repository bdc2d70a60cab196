#include "platform/linux/tools/ToolPreferences.h"

#include <QCoreApplication>
#include <QDir>

namespace tembra {

Result<void> ToolPreferences::setShowThumbnail(std::optional<bool>) {
    return failure(Error{QStringLiteral("Tembra.ScreenCapturePreferences"), 1,
                         QCoreApplication::translate("ScreenCapturePreferences",
                                                     "%1 has no floating thumbnail to turn on or off.")
                             .arg(toolName()),
                         QString()});
}

std::optional<QString> ToolPreferences::absolute(const QString &location) const {
    if (location == u"~")
        return m_folders.home;
    if (location.startsWith(u"~/"))
        return QDir::cleanPath(m_folders.home + location.mid(1));
    return location.startsWith(u'/') ? std::optional(QDir::cleanPath(location)) : std::nullopt;
}

} // namespace tembra
