#include "platform/linux/LinuxVolumes.h"

#include "platform/linux/MountTable.h"
#include "platform/linux/StableHash.h"

#include <QDir>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstring>
#include <fcntl.h>
#include <linux/magic.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/vfs.h>

namespace tembra {

namespace {

using namespace std::string_view_literals;

std::string_view view(const QByteArray &bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

bool isOneOf(const QByteArray &type, std::initializer_list<std::string_view> names) {
    return std::ranges::find(names, view(type)) != names.end();
}

// A file system in user space ("fuse.sshfs") may be anything; one on a block device ("fuseblk") is a disk.
bool isUserSpace(const QByteArray &type) {
    return type == "fuse" || type.startsWith("fuse.");
}

// The FAT family numbers its files anew whenever it reads them.
bool numbersFilesAnew(const QByteArray &type) {
    return isUserSpace(type) || isOneOf(type, {"vfat"sv, "msdos"sv, "exfat"sv});
}

// The name of the link under /dev/disk/by-uuid that leads to the device.
QByteArray fileSystemUuid(const QByteArray &source) {
    struct stat device {};
    if (!source.startsWith('/') || ::stat(source.constData(), &device) != 0 || !S_ISBLK(device.st_mode))
        return {};
    const QDir folder(QStringLiteral("/dev/disk/by-uuid"));
    const QStringList names = folder.entryList(QDir::System | QDir::Files | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        struct stat candidate {};
        const QByteArray path = QFile::encodeName(folder.filePath(name));
        if (::stat(path.constData(), &candidate) == 0 && candidate.st_rdev == device.st_rdev)
            return name.toLatin1();
    }
    return {};
}

std::uint64_t fileSystemId(const struct statfs &facts) {
    std::array<std::uint32_t, 2> words{};
    static_assert(sizeof(words) == sizeof(facts.f_fsid));
    std::memcpy(words.data(), &facts.f_fsid, sizeof(words));
    return (std::uint64_t{words[0]} << 32) | words[1];
}

std::uint64_t hashOfName(const MountEntry &mount) {
    return stableHash(view(mount.source), stableHash(view(mount.type)));
}

// Each subvolume of btrfs numbers its files by itself, and its number is in the file-system id (as an
// exclusive or); the UUID is that of all of them together. Of other systems the id may be a device number.
std::uint64_t volumeId(const MountEntry &mount, const struct statfs *facts) {
    if (isRemoteFileSystem(mount.type))
        return hashOfName(mount);
    if (mount.type != "btrfs") {
        if (const QByteArray uuid = fileSystemUuid(mount.source); !uuid.isEmpty())
            return stableHash(view(uuid));
    }
    const std::uint64_t id = facts ? fileSystemId(*facts) : 0;
    return id != 0 ? id : hashOfName(mount);
}

// A changed root hides the mount that it lies on from the table; what kind it is the file system itself still
// tells.
MountEntry unlistedMount(const struct statfs &facts) {
    constexpr auto exfatMagic = 0x2011bab0;
    switch (static_cast<std::uint32_t>(facts.f_type)) {
    case MSDOS_SUPER_MAGIC:
        return {.type = "vfat"};
    case exfatMagic:
        return {.type = "exfat"};
    case FUSE_SUPER_MAGIC:
        return {.type = "fuse"};
    case NFS_SUPER_MAGIC:
        return {.type = "nfs"};
    case CIFS_SUPER_MAGIC:
    case SMB2_SUPER_MAGIC:
        return {.type = "cifs"};
    default:
        return {};
    }
}

bool isRootMount(const MountEntry &mount) {
    return mount.mountPoint == "/";
}

} // namespace

bool isRemoteFileSystem(const QByteArray &type) {
    return isUserSpace(type) ||
           isOneOf(type, {"nfs"sv, "nfs4"sv, "cifs"sv, "smb3"sv, "smbfs"sv, "9p"sv, "afs"sv, "ceph"sv,
                          "virtiofs"sv, "glusterfs"sv, "ncpfs"sv, "vboxsf"sv});
}

LinuxVolume LinuxVolumes::of(std::uint64_t device, std::uint64_t mountId, const QByteArray &path,
                             bool followsLinks) {
    const std::lock_guard lock(m_mutex);
    if (m_changes.haveHappened())
        m_known.clear();
    if (const auto known = m_known.constFind(device); known != m_known.constEnd())
        return *known;

    const std::vector<MountEntry> table = readMountTable();
    const auto mount = std::ranges::find(table, mountId, &MountEntry::id);
    const Descriptor place(::open(path.constData(), O_PATH | O_CLOEXEC | (followsLinks ? 0 : O_NOFOLLOW)));
    struct statfs facts {};
    const bool hasFacts = place.isOpen() && ::fstatfs(place.number(), &facts) == 0;
    LinuxVolume volume;
    if (mount == table.end() && !hasFacts) {
        volume.id = device;
        return volume;
    }
    const MountEntry entry = mount == table.end() ? unlistedMount(facts) : *mount;
    volume.id = volumeId(entry, hasFacts ? &facts : nullptr);
    volume.isRemote = isRemoteFileSystem(entry.type);
    volume.hasLastingInodes = !numbersFilesAnew(entry.type);
    volume.hasLastingHandles = volume.hasLastingInodes && !volume.isRemote && entry.type != "fuseblk";
    m_known.insert(device, volume);
    return volume;
}

bool LinuxVolumes::isMounted(std::uint64_t id) {
    const std::vector<MountEntry> table = readMountTable();
    struct statfs root {};
    if (std::ranges::none_of(table, isRootMount) && ::statfs("/", &root) == 0 &&
        volumeId(unlistedMount(root), &root) == id)
        return true;
    return std::ranges::any_of(table, [id](const MountEntry &mount) {
        if (mount.type == "autofs")
            return false;
        struct statfs facts {};
        const bool hasFacts =
            !isRemoteFileSystem(mount.type) && ::statfs(mount.mountPoint.constData(), &facts) == 0;
        const std::uint64_t mounted = volumeId(mount, hasFacts ? &facts : nullptr);
        // A subvolume inside the mounted one differs in its number alone.
        const bool isSubvolume = mount.type == "btrfs" && (mounted ^ id) >> 32 == 0;
        return mounted == id || isSubvolume;
    });
}

} // namespace tembra
