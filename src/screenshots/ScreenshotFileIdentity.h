#pragma once

#include "platform/FileFacts.h"

#include <QHashFunctions>
#include <QString>

#include <optional>
#include <variant>

namespace tembra {

// The key that recognises one file across scans, renames and moves. Where the file system tells no identity
// the path stands in, and a renamed file is a new one.
struct ScreenshotFileIdentity {
    struct Resource {
        FileResource resource;
        std::optional<Instant> createdAt;
        bool operator==(const Resource &) const = default;
    };
    struct Path {
        QString path;
        std::optional<Instant> createdAt;
        bool operator==(const Path &) const = default;
    };

    std::variant<Resource, Path> value;

    [[nodiscard]] static ScreenshotFileIdentity of(const QString &path, const FileFacts &facts);

    // What the file system knows the file by; nothing where the path stands in.
    [[nodiscard]] std::optional<FileResource> resource() const;

    bool operator==(const ScreenshotFileIdentity &) const = default;
};

[[nodiscard]] size_t qHash(const ScreenshotFileIdentity &identity, size_t seed = 0);

} // namespace tembra
