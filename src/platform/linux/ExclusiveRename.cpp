#include "platform/linux/ExclusiveRename.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace tembra {

int renameExclusively(int fromFolder, const QByteArray &fromName, int toFolder, const QByteArray &toName) {
    const char *const from = fromName.constData();
    const char *const to = toName.constData();
    if (::renameat2(fromFolder, from, toFolder, to, RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    struct stat facts {};
    if (::fstatat(toFolder, to, &facts, AT_SYMLINK_NOFOLLOW) == 0)
        return EEXIST;
    return errno == ENOENT && ::renameat(fromFolder, from, toFolder, to) == 0 ? 0 : errno;
}

} // namespace tembra
