#include "platform/linux/UserVolumes.h"

#include "base/FilePath.h"
#include "platform/linux/LinuxVolumes.h"
#include "platform/linux/MountTable.h"

#include <algorithm>
#include <unistd.h>

namespace tembra {

namespace {

bool isOfTheSystem(const QByteArray &mountPoint) {
    constexpr const char *places[]{"/boot", "/dev", "/etc", "/proc", "/snap", "/sys", "/usr", "/var"};
    return mountPoint == "/" || std::ranges::any_of(places, [&](const QByteArray &place) {
               return mountPoint == place || mountPoint.startsWith(place + '/');
           });
}

} // namespace

QStringList userVolumes() {
    QStringList mountPoints;
    for (const MountEntry &mount : readMountTable()) {
        const bool isDisk = mount.source.startsWith("/dev/") && mount.root == "/";
        if (!isDisk || isRemoteFileSystem(mount.type) || isOfTheSystem(mount.mountPoint))
            continue;
        if (::access(mount.mountPoint.constData(), W_OK) == 0)
            mountPoints += pathFromBytes(mount.mountPoint);
    }
    return mountPoints;
}

} // namespace tembra
