#include "platform/linux/LinuxFileReferences.h"

#include "base/FilePath.h"
#include "platform/linux/LinuxHeldFile.h"
#include "platform/linux/MountKey.h"

#include <QDir>

#include <algorithm>
#include <fcntl.h>

namespace tembra {

namespace {

Descriptor openName(const QString &path) {
    return Descriptor(::open(pathBytes(path).constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
}

bool isOnLastingMount(const Descriptor &file) {
    const auto mount = mountKeyOf(file.number());
    const QStringList lasting{QDir::rootPath(), QDir::homePath(), QDir::tempPath()};
    return mount && std::ranges::any_of(lasting, [&mount](const QString &place) {
               const Descriptor folder = openName(place);
               return folder.isOpen() && mountKeyOf(folder.number()) == mount;
           });
}

} // namespace

std::shared_ptr<const HeldFile> LinuxFileReferences::hold(const QString &path) const {
    if (*m_heldCount >= mostHeld)
        return nullptr;
    Descriptor file = openName(path);
    if (!file.isOpen() || !isOnLastingMount(file))
        return nullptr;
    return std::make_shared<LinuxHeldFile>(std::move(file), m_heldCount);
}

} // namespace tembra
