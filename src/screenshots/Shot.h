#pragma once

#include "screenshots/ScreenshotFileIdentity.h"

#include <QString>

#include <cstdint>

namespace tembra {

class FileFactsReader;
class FileReferences;
struct FileVersion;

// One screenshot or recording. A value, one per file.
struct Shot {
    // Absolute path as last seen.
    QString location;
    ScreenshotFileIdentity identity;
    // Names this version of the file: it changes whenever the file is replaced or rewritten. Begins with the
    // revision of its content.
    QString stamp;
    // What sections and order go by.
    Instant createdAt{};

    // The path of the file now: followed to its new name or place by its identity, else `location`. Empty
    // when neither is this file any more.
    [[nodiscard]] QString currentPath(const FileFactsReader &facts, const FileReferences &references) const;

    // Of a file's content, as far as its size in bytes and its date tell it.
    [[nodiscard]] static QString revision(std::uint64_t size, Instant modifiedAt);
    // Of a version of a file.
    [[nodiscard]] static QString stampOf(const FileVersion &version);
    [[nodiscard]] bool hasRevision(QStringView revision) const;

    bool operator==(const Shot &) const = default;
};

} // namespace tembra
