#pragma once

#include "base/Clocks.h"
#include "base/Result.h"

#include <QHashFunctions>
#include <QString>

#include <compare>
#include <cstdint>
#include <optional>

namespace tembra {

// What stays the same when a file is renamed or moved on its volume. `volume` names the file system across
// mounts and restarts, `inode` the file on it, `generation` tells a new file from a deleted one whose inode
// it got (0 where the file system does not tell).
struct FileResource {
    std::uint64_t volume = 0;
    std::uint64_t inode = 0;
    std::uint64_t generation = 0;

    auto operator<=>(const FileResource &) const = default;
};

[[nodiscard]] inline size_t qHash(const FileResource &file, size_t seed = 0) {
    return qHashMulti(seed, file.volume, file.inode, file.generation);
}

enum class FileKind { regular, directory, link, other };

// What is asked about a file, read in one go.
struct FileFacts {
    FileKind kind = FileKind::other;
    std::optional<FileResource> resource;
    // The recorded creation date if the program recorded one, else the earlier of birth and modification
    // time; nothing where the file system keeps no birth time.
    std::optional<Instant> createdAt;
    Instant modifiedAt{};
    // The last change of content or attributes.
    Instant changedAt{};
    std::uint64_t size = 0;
};

// Reads facts of files. Any thread.
class FileFactsReader {
public:
    virtual ~FileFactsReader() = default;
    // A link is described itself, not followed. Error: "POSIX" with the errno.
    [[nodiscard]] virtual Result<FileFacts> facts(const QString &path) const = 0;
    // As above, following links.
    [[nodiscard]] virtual Result<FileFacts> targetFacts(const QString &path) const = 0;
    // Whether a folder can be opened for reading and, with `enumerateContents`, its entries be listed.
    [[nodiscard]] virtual Result<void> canReadFolder(const QString &path, bool enumerateContents) const = 0;
    // Notes the date that `createdAt` is to tell from now on, whatever is written over the file's bytes
    // later.
    virtual Result<void> recordCreationDate(const QString &path, Instant createdAt) const = 0;
};

} // namespace tembra
