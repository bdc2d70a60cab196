#include "platform/linux/LinuxHeldFile.h"

#include "base/FilePath.h"

#include <array>
#include <climits>
#include <sys/stat.h>

namespace tembra {

namespace {

// Where the kernel says the file is; a name that was taken away is marked at its end.
QByteArray linkOf(int descriptor) {
    std::array<char, PATH_MAX> target{};
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(descriptor);
    const ssize_t length = ::readlink(link.constData(), target.data(), target.size());
    return length > 0 ? QByteArray(target.data(), length) : QByteArray();
}

bool isAt(int descriptor, const QByteArray &path) {
    struct stat held {};
    struct stat found {};
    return ::fstat(descriptor, &held) == 0 && ::lstat(path.constData(), &found) == 0 &&
           held.st_dev == found.st_dev && held.st_ino == found.st_ino;
}

} // namespace

LinuxHeldFile::LinuxHeldFile(Descriptor file, std::shared_ptr<std::atomic<int>> heldCount)
    : m_file(std::move(file)), m_heldCount(std::move(heldCount)) {
    ++*m_heldCount;
}

LinuxHeldFile::~LinuxHeldFile() {
    --*m_heldCount;
}

std::optional<QString> LinuxHeldFile::path() const {
    const QByteArray path = linkOf(m_file.number());
    if (!path.startsWith('/') || !isAt(m_file.number(), path))
        return std::nullopt;
    return pathFromBytes(path);
}

bool LinuxHeldFile::isDeleted() const {
    const QByteArray path = linkOf(m_file.number());
    return path.endsWith(" (deleted)") && !isAt(m_file.number(), path);
}

} // namespace tembra
