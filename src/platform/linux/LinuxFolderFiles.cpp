#include "platform/linux/LinuxFolderFiles.h"

#include "platform/linux/FolderWalk.h"
#include "platform/linux/LinuxOpenFile.h"

#include <QFile>

#include <fcntl.h>

namespace tembra {

Result<std::unique_ptr<OpenFile>> LinuxFolderFiles::open(const QString &path) const {
    return LinuxOpenFile::open(AT_FDCWD, QFile::encodeName(path).constData(), m_reader);
}

Result<void> LinuxFolderFiles::list(const QString &folder, Subfolders subfolders, const Visit &visit) const {
    return FolderWalk(m_reader, visit).run(folder, subfolders);
}

} // namespace tembra
