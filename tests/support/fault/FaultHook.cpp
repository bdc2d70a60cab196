// Loaded into a program before its libraries (LD_PRELOAD), it counts the calls that change what lies beneath
// a folder and lets one of them go wrong. Calls that the C library makes within its own functions (fopen,
// mkstemp) go past it. The environment says what is to happen:
//   TEMBRA_FAULT_FOLDER  the folder, without links on the way to it
//   TEMBRA_FAULT_AT      the number of the call, from 1; none: nothing goes wrong
//   TEMBRA_FAULT_KIND    "kill-before", "kill-after", "ENOSPC", "EIO", "EACCES"; with "-always" every later
//                        call fails too
//   TEMBRA_FAULT_LOG     a file that gets a line "number call path" for each call

#include "support/fault/FaultPlan.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace tembra::fault;

namespace {

template <class Function>
Function *nextOf(Function *, const char *name) {
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

template <class Call, class... Places>
auto step(const char *name, const Call &call, const Places &...places) -> decltype(call()) {
    const Place *watched = nullptr;
    ((watched = !watched && places.isWatched() ? &places : watched), ...);
    if (!watched)
        return call();
    int code = 0;
    switch (fateOf(name, *watched, code)) {
    case Fate::perform:
        return call();
    case Fate::dieBefore:
        die();
    case Fate::dieAfter:
        call();
        die();
    case Fate::fail:
        break;
    }
    errno = code;
    return -1;
}

bool changesFiles(int flags) {
    return (flags & (O_CREAT | O_TRUNC)) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

mode_t modeOf(int flags, va_list arguments) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(arguments, mode_t) : 0;
}

} // namespace

#define TEMBRA_HOOK(type, name, parameters, exceptions, arguments, ...)                                      \
    extern "C" type name parameters exceptions {                                                             \
        static const auto next = nextOf(&::name, #name);                                                     \
        return step(                                                                                         \
            #name, [&] { return next arguments; }, __VA_ARGS__);                                             \
    }

#define TEMBRA_OPEN_HOOK(name, parameters, arguments, place)                                                 \
    extern "C" int name parameters {                                                                         \
        static const auto next = nextOf(&::name, #name);                                                     \
        va_list list;                                                                                        \
        va_start(list, flags);                                                                               \
        const mode_t mode = modeOf(flags, list);                                                             \
        va_end(list);                                                                                        \
        const auto call = [&] { return next arguments; };                                                    \
        return changesFiles(flags) ? step(#name, call, place) : call();                                      \
    }

TEMBRA_OPEN_HOOK(open, (const char *path, int flags, ...), (path, flags, mode), Place(AT_FDCWD, path))
TEMBRA_OPEN_HOOK(open64, (const char *path, int flags, ...), (path, flags, mode), Place(AT_FDCWD, path))
TEMBRA_OPEN_HOOK(openat, (int at, const char *path, int flags, ...), (at, path, flags, mode), Place(at, path))
TEMBRA_OPEN_HOOK(openat64, (int at, const char *path, int flags, ...), (at, path, flags, mode),
                 Place(at, path))
TEMBRA_HOOK(int, creat, (const char *path, mode_t mode), , (path, mode), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, creat64, (const char *path, mode_t mode), , (path, mode), Place(AT_FDCWD, path))

TEMBRA_HOOK(ssize_t, write, (int file, const void *bytes, size_t size), , (file, bytes, size), Place(file))
TEMBRA_HOOK(ssize_t, writev, (int file, const iovec *parts, int count), , (file, parts, count), Place(file))
TEMBRA_HOOK(ssize_t, pwrite, (int file, const void *bytes, size_t size, off_t at), , (file, bytes, size, at),
            Place(file))
TEMBRA_HOOK(ssize_t, pwrite64, (int file, const void *bytes, size_t size, off64_t at), ,
            (file, bytes, size, at), Place(file))
TEMBRA_HOOK(int, ftruncate, (int file, off_t size), noexcept, (file, size), Place(file))
TEMBRA_HOOK(int, ftruncate64, (int file, off64_t size), noexcept, (file, size), Place(file))
TEMBRA_HOOK(int, truncate, (const char *path, off_t size), noexcept, (path, size), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, truncate64, (const char *path, off64_t size), noexcept, (path, size), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, fsync, (int file), , (file), Place(file))
TEMBRA_HOOK(int, fdatasync, (int file), , (file), Place(file))

TEMBRA_HOOK(int, rename, (const char *from, const char *to), noexcept, (from, to), Place(AT_FDCWD, from),
            Place(AT_FDCWD, to))
TEMBRA_HOOK(int, renameat, (int at, const char *from, int toAt, const char *to), noexcept,
            (at, from, toAt, to), Place(at, from), Place(toAt, to))
TEMBRA_HOOK(int, renameat2, (int at, const char *from, int toAt, const char *to, unsigned flags), noexcept,
            (at, from, toAt, to, flags), Place(at, from), Place(toAt, to))
TEMBRA_HOOK(int, link, (const char *from, const char *to), noexcept, (from, to), Place(AT_FDCWD, to))
TEMBRA_HOOK(int, linkat, (int at, const char *from, int toAt, const char *to, int flags), noexcept,
            (at, from, toAt, to, flags), Place(toAt, to))
TEMBRA_HOOK(int, symlink, (const char *target, const char *path), noexcept, (target, path),
            Place(AT_FDCWD, path))
TEMBRA_HOOK(int, unlink, (const char *path), noexcept, (path), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, unlinkat, (int at, const char *path, int flags), noexcept, (at, path, flags),
            Place(at, path))
TEMBRA_HOOK(int, rmdir, (const char *path), noexcept, (path), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, mkdir, (const char *path, mode_t mode), noexcept, (path, mode), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, mkdirat, (int at, const char *path, mode_t mode), noexcept, (at, path, mode),
            Place(at, path))

TEMBRA_HOOK(int, chmod, (const char *path, mode_t mode), noexcept, (path, mode), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, fchmod, (int file, mode_t mode), noexcept, (file, mode), Place(file))
TEMBRA_HOOK(int, fchmodat, (int at, const char *path, mode_t mode, int flags), noexcept,
            (at, path, mode, flags), Place(at, path))
TEMBRA_HOOK(int, chown, (const char *path, uid_t user, gid_t group), noexcept, (path, user, group),
            Place(AT_FDCWD, path))
TEMBRA_HOOK(int, lchown, (const char *path, uid_t user, gid_t group), noexcept, (path, user, group),
            Place(AT_FDCWD, path))
TEMBRA_HOOK(int, fchown, (int file, uid_t user, gid_t group), noexcept, (file, user, group), Place(file))
TEMBRA_HOOK(int, fchownat, (int at, const char *path, uid_t user, gid_t group, int flags), noexcept,
            (at, path, user, group, flags), Place(at, path))
TEMBRA_HOOK(int, setxattr, (const char *path, const char *key, const void *value, size_t size, int flags),
            noexcept, (path, key, value, size, flags), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, lsetxattr, (const char *path, const char *key, const void *value, size_t size, int flags),
            noexcept, (path, key, value, size, flags), Place(AT_FDCWD, path))
TEMBRA_HOOK(int, fsetxattr, (int file, const char *key, const void *value, size_t size, int flags), noexcept,
            (file, key, value, size, flags), Place(file))
TEMBRA_HOOK(int, utimensat, (int at, const char *path, const timespec *times, int flags), noexcept,
            (at, path, times, flags), Place(at, path))
TEMBRA_HOOK(int, futimens, (int file, const timespec *times), noexcept, (file, times), Place(file))
