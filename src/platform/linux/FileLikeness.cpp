#include "platform/linux/FileLikeness.h"

#include "platform/linux/PosixError.h"

#include <QByteArray>
#include <QByteArrayList>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tembra {

namespace {

constexpr auto accessList = "system.posix_acl_access";

// Of a call that fills a buffer and tells the size when it gets none.
template <class Call>
Result<QByteArray> sized(Call call) {
    while (true) {
        const ssize_t size = call(nullptr, 0);
        if (size < 0)
            return failure(posixError());
        QByteArray bytes(size, Qt::Uninitialized);
        const ssize_t filled = size == 0 ? 0 : call(bytes.data(), static_cast<std::size_t>(size));
        if (filled >= 0)
            return bytes.first(filled);
        // It grew in between.
        if (errno != ERANGE)
            return failure(posixError());
    }
}

bool isUnsupported(int code) {
    return code == ENOTSUP || code == EPERM;
}

// Who has the file and what they may do.
Result<void> copyPermissions(int file, int modelFile, const struct stat &model) {
    struct stat own {};
    if (::fstat(file, &own) != 0)
        return failure(posixError());
    mode_t mode = model.st_mode & 07777;
    if (own.st_uid != model.st_uid && ::fchown(file, model.st_uid, static_cast<gid_t>(-1)) != 0) {
        if (errno != EPERM)
            return failure(posixError());
        mode &= ~static_cast<mode_t>(S_ISUID);
    }
    if (own.st_gid != model.st_gid && ::fchown(file, static_cast<uid_t>(-1), model.st_gid) != 0) {
        if (errno != EPERM)
            return failure(posixError());
        // Another group gets no more than everybody does.
        mode = (mode & ~static_cast<mode_t>(S_ISGID | S_IRWXG)) | ((mode & S_IRWXO) << 3);
    }
    // A list that the folder gives to new files, which the permissions would bring to life.
    if (::fgetxattr(modelFile, accessList, nullptr, 0) < 0 && ::fremovexattr(file, accessList) != 0 &&
        errno != ENODATA && !isUnsupported(errno))
        return failure(posixError());
    if (::fchmod(file, mode) != 0)
        return failure(posixError());
    return {};
}

Result<void> copyAttribute(int file, int model, const char *name) {
    const auto value =
        sized([&](char *into, std::size_t size) { return ::fgetxattr(model, name, into, size); });
    if (!value)
        return value.error().code == ENODATA || isUnsupported(value.error().code) ? Result<void>()
                                                                                  : failure(value.error());
    if (::fsetxattr(file, name, value->constData(), static_cast<std::size_t>(value->size()), 0) != 0 &&
        !isUnsupported(errno))
        return failure(posixError());
    return {};
}

Result<void> copyAttributes(int file, int model) {
    const auto names = sized([=](char *into, std::size_t size) { return ::flistxattr(model, into, size); });
    if (!names)
        return isUnsupported(names.error().code) ? Result<void>() : failure(names.error());
    for (const QByteArray &name : names->split('\0')) {
        if (!name.startsWith("user."))
            continue;
        if (auto copied = copyAttribute(file, model, name.constData()); !copied)
            return copied;
    }
    return {};
}

} // namespace

Result<void> makeLike(int file, int model) {
    struct stat status {};
    if (::fstat(model, &status) != 0)
        return failure(posixError());
    // While the file may still be written.
    if (auto copied = copyAttributes(file, model); !copied)
        return copied;
    if (auto permitted = copyPermissions(file, model, status); !permitted)
        return permitted;
    return copyAttribute(file, model, accessList);
}

} // namespace tembra
