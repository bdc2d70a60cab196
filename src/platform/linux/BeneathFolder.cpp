#include "platform/linux/BeneathFolder.h"

#include "platform/linux/MountKey.h"
#include "platform/linux/PosixError.h"

#include <QList>

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace tembra {

namespace {

constexpr int folderFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t newFolderMode = 0777;

bool isLink(int folder, const QByteArray &name) {
    struct stat facts {};
    return ::fstatat(folder, name.constData(), &facts, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(facts.st_mode);
}

Result<Descriptor> openChild(int folder, const QByteArray &name, MissingFolders missing) {
    Descriptor child(::openat(folder, name.constData(), folderFlags));
    if (!child.isOpen() && errno == ENOENT && missing == MissingFolders::areMade) {
        if (::mkdirat(folder, name.constData(), newFolderMode) != 0 && errno != EEXIST)
            return failure(posixError());
        child = Descriptor(::openat(folder, name.constData(), folderFlags));
    }
    if (child.isOpen())
        return child;
    const int code = errno;
    return failure(posixError(code == ENOTDIR && isLink(folder, name) ? ELOOP : code));
}

} // namespace

Result<Descriptor> walkBeneath(int root, const QByteArray &path, MissingFolders missing) {
    const auto rootMount = mountKeyOf(root);
    Descriptor folder(::openat(root, ".", folderFlags));
    if (!rootMount || !folder.isOpen())
        return failure(posixError());
    for (const QByteArray &name : path.split('/')) {
        if (name.isEmpty() || name == ".")
            continue;
        if (name == "..")
            return failure(posixError(EXDEV));
        auto child = openChild(folder.number(), name, missing);
        if (!child)
            return child;
        const auto mount = mountKeyOf(child->number());
        if (!mount || mount->mount != rootMount->mount)
            return failure(posixError(EXDEV));
        folder = *std::move(child);
    }
    return folder;
}

Result<Descriptor> openBeneath(int root, const QByteArray &path, MissingFolders missing) {
    open_how how{};
    // A link at the end is to be told as such, too.
    how.flags = folderFlags & ~O_NOFOLLOW;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_XDEV;
    const char *const name = path.isEmpty() ? "." : path.constData();
    Descriptor folder(static_cast<int>(::syscall(SYS_openat2, root, name, &how, sizeof(how))));
    if (folder.isOpen())
        return folder;
    const int code = errno;
    // Sandboxes that do not know the call refuse it.
    const bool isUnknownCall = code == ENOSYS || code == EPERM;
    if (isUnknownCall || (code == ENOENT && missing == MissingFolders::areMade))
        return walkBeneath(root, path, missing);
    return failure(posixError(code));
}

} // namespace tembra
