#pragma once

#include "platform/FileFacts.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tembra {

// A screenshot that the user pinned. It stays in the list unresolved while its disk is absent.
struct PinnedScreenshot {
    struct Resolved {
        QString path;
        // Follows the file while the program runs; nothing where the file system tells no identity.
        std::optional<FileResource> reference;

        bool operator==(const Resolved &) const = default;
    };

    QByteArray bookmark;
    std::optional<Resolved> resolved;
    // Not resolved although its disk is there: the file was deleted. It may still come back.
    bool isGone = false;

    bool operator==(const PinnedScreenshot &) const = default;
};

} // namespace tembra
