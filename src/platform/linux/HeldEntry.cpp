#include "platform/linux/HeldEntry.h"

#include "platform/linux/PosixError.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace tembra {

namespace {

bool isSame(const struct stat &one, const struct stat &other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

} // namespace

HeldEntry::HeldEntry(Descriptor folder, QByteArray name, Descriptor file)
    : m_folder(std::move(folder)), m_name(std::move(name)), m_file(std::move(file)) {}

Result<HeldEntry> HeldEntry::open(Descriptor folder, const QByteArray &name) {
    Descriptor file(::openat(folder.number(), name.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (!file.isOpen())
        return failure(posixError());
    return HeldEntry(std::move(folder), name, std::move(file));
}

Result<FileFacts> HeldEntry::facts(const LinuxFileFactsReader &reader) const {
    struct stat facts {};
    if (::fstat(m_file.number(), &facts) != 0)
        return failure(posixError());
    if (!S_ISREG(facts.st_mode))
        return failure(posixError(EINVAL));
    return reader.targetFacts(QStringLiteral("/proc/self/fd/%1").arg(m_file.number()));
}

bool HeldEntry::isAt(int folder, const QByteArray &name) const {
    struct stat own {};
    struct stat found {};
    return ::fstat(m_file.number(), &own) == 0 &&
           ::fstatat(folder, name.constData(), &found, AT_SYMLINK_NOFOLLOW) == 0 && isSame(own, found);
}

bool isSameFile(int one, int other) {
    struct stat first {};
    struct stat second {};
    return ::fstat(one, &first) == 0 && ::fstat(other, &second) == 0 && isSame(first, second);
}

} // namespace tembra
