#include "platform/linux/TrashFolder.h"

#include "platform/linux/ExclusiveRename.h"
#include "platform/linux/PosixError.h"
#include "platform/linux/TrashInfo.h"

#include <algorithm>
#include <array>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>

namespace tembra {

namespace {

constexpr mode_t privateMode = 0700;
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr int mostNamesakes = 100'000;

// A folder of that name in another one, made if there is none; no link.
Descriptor openOwnFolder(int parent, const QByteArray &name) {
    if (::mkdirat(parent, name.constData(), privateMode) != 0 && errno != EEXIST)
        return Descriptor();
    return Descriptor(::openat(parent, name.constData(), folderFlags));
}

// As above, and nobody else's.
Descriptor openUsersFolder(int parent, const QByteArray &name) {
    Descriptor folder = openOwnFolder(parent, name);
    struct stat facts {};
    if (!folder.isOpen() || ::fstat(folder.number(), &facts) != 0 || facts.st_uid == ::geteuid())
        return folder;
    errno = EACCES;
    return Descriptor();
}

// Makes the folder and those above it.
void makeFolders(const QByteArray &path) {
    if (::mkdir(path.constData(), privateMode) == 0 || errno != ENOENT)
        return;
    if (const qsizetype slash = path.lastIndexOf('/'); slash > 0) {
        makeFolders(path.left(slash));
        ::mkdir(path.constData(), privateMode);
    }
}

// Where an open folder is now.
Result<QByteArray> pathOfOpen(int folder) {
    std::array<char, PATH_MAX> path{};
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(folder);
    const ssize_t length = ::readlink(link.constData(), path.data(), path.size());
    if (length <= 0 || path.front() != '/')
        return failure(posixError(length < 0 ? errno : ENOENT));
    return QByteArray(path.data(), length);
}

// The highest folder above the open one, or that itself, in the same file system and mount.
Result<Descriptor> openTop(int folder) {
    constexpr int flags = O_PATH | O_DIRECTORY | O_CLOEXEC;
    Descriptor top(::openat(folder, ".", flags));
    const auto mount = mountKeyOf(folder);
    if (!top.isOpen() || !mount)
        return failure(posixError());
    for (;;) {
        Descriptor above(::openat(top.number(), "..", flags));
        if (!above.isOpen() || mountKeyOf(above.number()) != mount ||
            isSameFile(above.number(), top.number()))
            return top;
        top = std::move(above);
    }
}

// The one that an administrator made for all users counts only if no user can have made it.
Descriptor openSharedTrash(int top) {
    const Descriptor shared(::openat(top, ".Trash", folderFlags));
    struct stat facts {};
    if (!shared.isOpen() || ::fstat(shared.number(), &facts) != 0 || !(facts.st_mode & S_ISVTX))
        return Descriptor();
    return openUsersFolder(shared.number(), QByteArray::number(::geteuid()));
}

bool canWrite(int folder) {
    return ::faccessat(folder, ".", W_OK | X_OK, AT_EACCESS) == 0;
}

bool isFolderAt(const QByteArray &path, int folder) {
    const Descriptor found(::open(path.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return found.isOpen() && isSameFile(found.number(), folder);
}

bool writeAll(int descriptor, const QByteArray &content) {
    qsizetype written = 0;
    while (written < content.size()) {
        const ssize_t count = ::write(descriptor, content.constData() + written,
                                      static_cast<std::size_t>(content.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        written += std::max<ssize_t>(count, 0);
    }
    return true;
}

} // namespace

Result<std::shared_ptr<const TrashFolder>> TrashFolder::home(const QByteArray &path) {
    makeFolders(path);
    const Descriptor folder(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder.isOpen() ? open(folder, {}) : failure(posixError());
}

Result<std::shared_ptr<const TrashFolder>> TrashFolder::ofVolume(int folder) {
    const auto top = openTop(folder);
    if (!top)
        return failure(top.error());
    Descriptor trash = openSharedTrash(top->number());
    if (!trash.isOpen())
        trash = openUsersFolder(top->number(), ".Trash-" + QByteArray::number(::geteuid()));
    if (!trash.isOpen())
        return failure(posixError());
    return pathOfOpen(top->number()).and_then([&](const QByteArray &path) { return open(trash, path); });
}

Result<std::shared_ptr<const TrashFolder>> TrashFolder::open(const Descriptor &folder,
                                                             const QByteArray &top) {
    const std::shared_ptr<TrashFolder> trash(new TrashFolder);
    trash->m_files = openOwnFolder(folder.number(), "files");
    if (!trash->m_files.isOpen())
        return failure(posixError());
    trash->m_info = openOwnFolder(folder.number(), "info");
    if (!trash->m_info.isOpen() || !canWrite(trash->m_files.number()) || !canWrite(trash->m_info.number()))
        return failure(posixError());
    const auto path = pathOfOpen(folder.number());
    const auto mount = mountKeyOf(trash->m_files.number());
    if (!path || !mount)
        return failure(path ? mount.error() : path.error());
    trash->m_path = *path;
    trash->m_top = top;
    trash->m_mount = *mount;
    const long limit = ::fpathconf(trash->m_info.number(), _PC_NAME_MAX);
    trash->m_nameLimit = limit > 0 ? std::min<long>(limit, NAME_MAX) : NAME_MAX;
    return trash;
}

bool TrashFolder::isUsable() const {
    return isFolderAt(m_path + "/files", m_files.number()) && isFolderAt(m_path + "/info", m_info.number()) &&
           canWrite(m_files.number()) && canWrite(m_info.number());
}

Result<QByteArray> TrashFolder::originalPath(const HeldEntry &entry) const {
    return pathOfOpen(entry.folder()).map([&](const QByteArray &folder) {
        const QByteArray path = (folder == "/" ? QByteArray() : folder) + '/' + entry.name();
        const QByteArray top = m_top.endsWith('/') ? m_top : m_top + '/';
        return !m_top.isEmpty() && path.startsWith(top) ? path.mid(top.size()) : path;
    });
}

Result<QByteArray> TrashFolder::receive(const HeldEntry &entry, Instant deletedAt,
                                        const TrashSteps &steps) const {
    const auto path = originalPath(entry);
    if (!path)
        return failure(path.error());
    const QByteArray info = trashInfo(*path, deletedAt);
    for (int attempt = 1; attempt <= mostNamesakes; ++attempt) {
        const QByteArray name = trashName(entry.name(), attempt, m_nameLimit);
        const int made = makeInfo(name, info, steps);
        if (made == EEXIST)
            continue;
        if (made != 0)
            return failure(posixError(made));
        const int moved = renameExclusively(entry.folder(), entry.name(), m_files.number(), name);
        if (moved == 0) {
            steps("moved");
            return name;
        }
        removeInfo(name);
        if (moved != EEXIST)
            return failure(posixError(moved));
    }
    return failure(posixError(EEXIST));
}

int TrashFolder::makeInfo(const QByteArray &name, const QByteArray &content, const TrashSteps &steps) const {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor file(::openat(m_info.number(), (name + trashInfoSuffix).constData(), flags, 0600));
    if (!file.isOpen())
        return errno;
    steps("infoMade");
    // Some file systems tell only on closing that there was no room.
    const bool isWritten = writeAll(file.number(), content);
    const int writeCode = isWritten ? 0 : errno;
    const int code = ::close(file.release()) == 0 || !isWritten ? writeCode : errno;
    if (code != 0)
        removeInfo(name);
    else
        steps("infoWritten");
    return code;
}

void TrashFolder::removeInfo(const QByteArray &name) const {
    ::unlinkat(m_info.number(), (name + trashInfoSuffix).constData(), 0);
}

} // namespace tembra
