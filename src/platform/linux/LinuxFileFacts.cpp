#include "platform/linux/LinuxFileFacts.h"

#include "base/FilePath.h"
#include "platform/linux/PosixError.h"
#include "platform/linux/StableHash.h"

#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <new>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>

namespace tembra {

namespace {

constexpr auto creationAttribute = "user.app.tembra.created";
constexpr unsigned wantedFacts = STATX_BASIC_STATS | STATX_BTIME | STATX_MNT_ID;

Instant instant(const statx_timestamp &stamp) {
    return Instant(std::chrono::seconds(stamp.tv_sec) + std::chrono::nanoseconds(stamp.tv_nsec));
}

std::uint64_t deviceNumber(const struct statx &status) {
    return makedev(status.stx_dev_major, status.stx_dev_minor);
}

// A file as system calls name it: by its path, with links followed or not, or by its descriptor.
struct Place {
    int folder = AT_FDCWD;
    QByteArray path;
    bool followsLinks = false;

    [[nodiscard]] bool isOpen() const { return folder != AT_FDCWD; }
};

std::uint64_t generation(const Place &place) {
    alignas(file_handle) std::array<char, sizeof(file_handle) + MAX_HANDLE_SZ> storage{};
    auto *handle = new (storage.data()) file_handle;
    handle->handle_bytes = MAX_HANDLE_SZ;
    int mountId = 0;
    const int flags = place.isOpen() ? AT_EMPTY_PATH : (place.followsLinks ? AT_SYMLINK_FOLLOW : 0);
    if (::name_to_handle_at(place.folder, place.path.constData(), handle, &mountId, flags) != 0)
        return 0;
    return stableHash({storage.data() + sizeof(file_handle), handle->handle_bytes});
}

QByteArray creationDigits(Instant createdAt) {
    return QByteArray::number(static_cast<qlonglong>(createdAt.time_since_epoch().count()));
}

std::optional<Instant> recordedCreation(const Place &place) {
    std::array<char, 32> digits{};
    const auto read = place.followsLinks ? ::getxattr : ::lgetxattr;
    const ssize_t length =
        place.isOpen() ? ::fgetxattr(place.folder, creationAttribute, digits.data(), digits.size())
                       : read(place.path.constData(), creationAttribute, digits.data(), digits.size());
    if (length <= 0)
        return std::nullopt;
    bool isNumber = false;
    const qlonglong nanoseconds = QByteArray::fromRawData(digits.data(), length).toLongLong(&isNumber);
    return isNumber ? std::optional(Instant(std::chrono::nanoseconds(nanoseconds))) : std::nullopt;
}

std::optional<Instant> creation(const struct statx &status, const std::optional<Instant> &recorded) {
    if (recorded)
        return recorded;
    if (!(status.stx_mask & STATX_BTIME))
        return std::nullopt;
    return std::min(instant(status.stx_btime), modificationTime(status));
}

Result<struct statx> status(const Place &place) {
    struct statx status {};
    const int flags = AT_NO_AUTOMOUNT | (place.isOpen() ? AT_EMPTY_PATH : 0) |
                      (place.followsLinks ? 0 : AT_SYMLINK_NOFOLLOW);
    if (::statx(place.folder, place.path.constData(), flags, wantedFacts, &status) != 0)
        return failure(posixError());
    return status;
}

FileFacts assemble(const struct statx &found, const LinuxVolume &volume, std::uint64_t generation,
                   const std::optional<Instant> &createdAt) {
    FileFacts facts;
    facts.kind = fileKind(found);
    facts.createdAt = createdAt;
    facts.modifiedAt = modificationTime(found);
    facts.changedAt = changeTime(found);
    facts.size = found.stx_size;
    if (volume.hasLastingInodes)
        facts.resource = FileResource{volume.id, found.stx_ino, generation};
    return facts;
}

} // namespace

FileKind fileKind(const struct statx &status) {
    if (S_ISREG(status.stx_mode))
        return FileKind::regular;
    if (S_ISDIR(status.stx_mode))
        return FileKind::directory;
    return S_ISLNK(status.stx_mode) ? FileKind::link : FileKind::other;
}

Instant modificationTime(const struct statx &status) {
    return instant(status.stx_mtime);
}

Instant changeTime(const struct statx &status) {
    return instant(status.stx_ctime);
}

Result<FileFacts> LinuxFileFactsReader::facts(const QString &path) const {
    return read(path, false);
}

Result<FileFacts> LinuxFileFactsReader::targetFacts(const QString &path) const {
    return read(path, true);
}

Result<FileFacts> LinuxFileFactsReader::read(const QString &path, bool followsLinks) const {
    const Place place{.path = pathBytes(path), .followsLinks = followsLinks};
    return status(place).map([&](const struct statx &found) {
        const LinuxVolume volume =
            m_volumes.of(deviceNumber(found), found.stx_mnt_id, place.path, followsLinks);
        return assemble(found, volume, volume.hasLastingHandles ? generation(place) : 0,
                        creation(found, recordedCreation(place)));
    });
}

Result<struct statx> LinuxFileFactsReader::statusOfOpen(int descriptor) {
    return status({.folder = descriptor, .path = QByteArray("")});
}

FileFacts LinuxFileFactsReader::factsOfOpen(int descriptor, const struct statx &status,
                                            bool hasAttributes) const {
    const Place place{.folder = descriptor, .path = QByteArray("")};
    const LinuxVolume volume = m_volumes.of(deviceNumber(status), status.stx_mnt_id,
                                            "/proc/self/fd/" + QByteArray::number(descriptor), true);
    return assemble(status, volume, volume.hasLastingHandles ? generation(place) : 0,
                    creation(status, hasAttributes ? recordedCreation(place) : std::nullopt));
}

Result<void> LinuxFileFactsReader::canReadFolder(const QString &path, bool enumerateContents) const {
    const std::unique_ptr<DIR, int (*)(DIR *)> folder(::opendir(pathBytes(path).constData()), ::closedir);
    if (!folder)
        return failure(posixError());
    errno = 0;
    // One entry proves it: the kernel reads them by the buffer.
    if (enumerateContents && !::readdir(folder.get()) && errno != 0)
        return failure(posixError());
    return {};
}

Result<void> LinuxFileFactsReader::recordCreationDate(const QString &path, Instant createdAt) const {
    const QByteArray digits = creationDigits(createdAt);
    if (::setxattr(pathBytes(path).constData(), creationAttribute, digits.constData(),
                   static_cast<std::size_t>(digits.size()), 0) != 0)
        return failure(posixError());
    return {};
}

Result<void> recordCreationDate(int descriptor, Instant createdAt) {
    const QByteArray digits = creationDigits(createdAt);
    if (::fsetxattr(descriptor, creationAttribute, digits.constData(),
                    static_cast<std::size_t>(digits.size()), 0) != 0)
        return failure(posixError());
    return {};
}

Result<struct statx> LinuxFileFactsReader::statusOf(const QString &path) {
    return status({.path = pathBytes(path)});
}

LinuxVolume LinuxFileFactsReader::volumeOf(const struct statx &status, const QString &path) const {
    return m_volumes.of(deviceNumber(status), status.stx_mnt_id, pathBytes(path), false);
}

Result<LinuxVolume> LinuxFileFactsReader::volumeOf(const QString &path) const {
    const QByteArray encoded = pathBytes(path);
    return status({.path = encoded, .followsLinks = true}).map([&](const struct statx &found) {
        return m_volumes.of(deviceNumber(found), found.stx_mnt_id, encoded, true);
    });
}

Result<std::uint64_t> LinuxFileFactsReader::volumeIdOf(const QString &path) const {
    return volumeOf(path).map([](const LinuxVolume &volume) { return volume.id; });
}

bool LinuxFileFactsReader::isVolumeMounted(std::uint64_t volume) const {
    return m_volumes.isMounted(volume);
}

} // namespace tembra
