#include "app/UpdateConfiguring.h"

#include "app/UpdateSource.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QSysInfo>

namespace tembra {

UpdateConfiguration updateConfiguration(const StandardFolders &folders) {
    return {.feedUrl = QStringLiteral(TEMBRA_UPDATE_FEED),
            .publicKey = QStringLiteral(TEMBRA_UPDATE_KEY),
            .currentVersion = QCoreApplication::applicationVersion(),
            .isPackageManaged = isPackageManaged(),
            .cacheFolder = folders.cache,
            .architecture = QSysInfo::buildCpuArchitecture(),
            .systemVersion = QSysInfo::kernelVersion()};
}

} // namespace tembra
