#pragma once

#include "platform/FileFacts.h"
#include "platform/linux/LinuxVolumes.h"

struct statx;

namespace tembra {

// Facts of files through statx. The generation is what the file's handle says beside the inode, folded into
// 64 bits. The recorded creation date is the extended attribute "user.app.tembra.created": nanoseconds since
// 1970 as decimal digits. Any thread.
class LinuxFileFactsReader final : public FileFactsReader {
public:
    [[nodiscard]] Result<FileFacts> facts(const QString &path) const override;
    [[nodiscard]] Result<FileFacts> targetFacts(const QString &path) const override;
    [[nodiscard]] Result<void> canReadFolder(const QString &path, bool enumerateContents) const override;
    Result<void> recordCreationDate(const QString &path, Instant createdAt) const override;

    // What statx tells of an open file, and the facts that follow from it. `hasAttributes` false spares
    // looking for a recorded creation date.
    [[nodiscard]] static Result<struct statx> statusOfOpen(int descriptor);
    [[nodiscard]] FileFacts factsOfOpen(int descriptor, const struct statx &status, bool hasAttributes) const;

    // The volume of FileResource for a file or folder there.
    [[nodiscard]] Result<std::uint64_t> volumeIdOf(const QString &path) const;
    // Whether a file system with this id is mounted anywhere.
    [[nodiscard]] bool isVolumeMounted(std::uint64_t volume) const;
    // What statx tells of a file, of a link itself, and the volume that this means.
    [[nodiscard]] static Result<struct statx> statusOf(const QString &path);
    [[nodiscard]] LinuxVolume volumeOf(const struct statx &status, const QString &path) const;
    // Everything about the volume of a file or folder there.
    [[nodiscard]] Result<LinuxVolume> volumeOf(const QString &path) const;

private:
    [[nodiscard]] Result<FileFacts> read(const QString &path, bool followsLinks) const;

    mutable LinuxVolumes m_volumes;
};

// Notes an open file's date of creation, as LinuxFileFactsReader does by its path.
Result<void> recordCreationDate(int descriptor, Instant createdAt);

// What statx tells by itself, shared with the reading of whole folders.
[[nodiscard]] FileKind fileKind(const struct statx &status);
[[nodiscard]] Instant modificationTime(const struct statx &status);
[[nodiscard]] Instant changeTime(const struct statx &status);

} // namespace tembra
