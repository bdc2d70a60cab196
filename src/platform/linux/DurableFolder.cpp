#include "platform/linux/DurableFolder.h"

#include "base/FilePath.h"
#include "platform/linux/FileCoordinatorError.h"
#include "platform/linux/PosixError.h"

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace tembra {

namespace {

Result<void> resultOf(int outcome) {
    if (outcome != 0)
        return failure(posixError());
    return {};
}

// Repeats a call that a signal interrupted.
template <class Call>
auto uninterrupted(Call call) {
    auto outcome = call();
    while (outcome < 0 && errno == EINTR)
        outcome = call();
    return outcome;
}

} // namespace

Result<DurableFolder> DurableFolder::open(const QByteArray &path) {
    constexpr int flags = O_DIRECTORY | O_CLOEXEC;
    Descriptor folder(::open(path.constData(), flags | O_RDONLY));
    // Files can be put into a folder whose list this user may not read; it cannot be waited for.
    if (!folder.isOpen() && errno == EACCES)
        folder = Descriptor(::open(path.constData(), flags | O_PATH));
    if (!folder.isOpen())
        return failure(posixError());
    return DurableFolder(std::move(folder));
}

Result<Descriptor> DurableFolder::openFile(const QByteArray &name) const {
    // Opening a pipe or a device could wait for somebody or do something: without waiting, and refused below.
    Descriptor file(
        ::openat(number(), name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (!file.isOpen() && (errno == ELOOP || errno == ENXIO))
        return failure(fileCoordinatorError(FileCoordinator::notRegular));
    if (!file.isOpen())
        return failure(posixError());
    struct stat status {};
    if (::fstat(file.number(), &status) != 0)
        return failure(posixError());
    if (!S_ISREG(status.st_mode))
        return failure(fileCoordinatorError(FileCoordinator::notRegular));
    return file;
}

Result<Descriptor> DurableFolder::createFile(const QByteArray &name) const {
    constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;
    Descriptor file(::openat(number(), name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ownerOnly));
    if (!file.isOpen())
        return failure(posixError());
    return file;
}

Result<void> DurableFolder::rename(const QByteArray &from, const QByteArray &to) const {
    return resultOf(::renameat(number(), from.constData(), number(), to.constData()));
}

Result<void> DurableFolder::exchange(const QByteArray &one, const QByteArray &other) const {
    return resultOf(::renameat2(number(), one.constData(), number(), other.constData(), RENAME_EXCHANGE));
}

Result<void> DurableFolder::remove(const QByteArray &name) const {
    return resultOf(::unlinkat(number(), name.constData(), 0));
}

Result<void> DurableFolder::sync() const {
    // Some file systems keep their folders in order by themselves and know no waiting for one.
    if (uninterrupted([this] { return ::fsync(number()); }) != 0 && errno != EINVAL && errno != ENOTSUP &&
        errno != EBADF)
        return failure(posixError());
    return {};
}

FilePlace::FilePlace(const QString &path) {
    const QByteArray bytes = pathBytes(path);
    const qsizetype slash = bytes.lastIndexOf('/');
    folder = bytes.left(std::max<qsizetype>(slash, 1));
    name = bytes.mid(slash + 1);
}

Result<QByteArray> readWhole(int file) {
    struct stat status {};
    if (::fstat(file, &status) != 0)
        return failure(posixError());
    QByteArray bytes;
    qsizetype length = 0;
    while (true) {
        if (std::max<std::int64_t>(status.st_size, length) > FileCoordinator::longestFile)
            return failure(fileCoordinatorError(FileCoordinator::tooLarge));
        // One byte more than there should be shows the end, or that the file is growing.
        if (length == bytes.size())
            bytes.resize(std::max<qsizetype>(status.st_size, length * 2) + 1);
        const ssize_t count = uninterrupted([&] {
            return ::read(file, bytes.data() + length, static_cast<std::size_t>(bytes.size() - length));
        });
        if (count < 0)
            return failure(posixError());
        if (count == 0)
            break;
        length += count;
    }
    bytes.truncate(length);
    return bytes;
}

Result<void> writeWhole(int file, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t count = uninterrupted(
            [&] { return ::write(file, bytes.data(), static_cast<std::size_t>(bytes.size())); });
        if (count < 0)
            return failure(posixError());
        bytes = bytes.sliced(count);
    }
    return {};
}

Result<void> syncFile(int file) {
    return resultOf(static_cast<int>(uninterrupted([=] { return ::fsync(file); })));
}

} // namespace tembra
