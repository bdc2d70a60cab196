#pragma once

#include "screenshots/ScreenshotFileIdentity.h"

#include <QString>

namespace tembra {

class FileFactsReader;
class FileReferences;

// One screenshot or recording. A value, one per file.
struct Shot {
    // Absolute path as last seen.
    QString location;
    ScreenshotFileIdentity identity;
    // Names this version of the file: it changes whenever the file is replaced or rewritten.
    QString stamp;
    // What sections and order go by.
    Instant createdAt{};

    // The path of the file now: followed to its new name or place by its identity, else `location`. Empty
    // when neither is this file any more.
    [[nodiscard]] QString currentPath(const FileFactsReader &facts, const FileReferences &references) const;

    bool operator==(const Shot &) const = default;
};

} // namespace tembra
