#pragma once

#include "base/Result.h"
#include "platform/FileFacts.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tembra {

// Serialisable references that find a file or folder again after it was renamed or moved. Any thread; nothing
// is ever mounted and no window appears.
class Bookmarks {
public:
    struct Resolved {
        QString path;
        // The bookmark still works but should be made anew: the file was found at another path.
        bool stale = false;
    };

    static inline const QString errorDomain = QStringLiteral("Tembra.Bookmarks");
    // Codes of the errors of that domain.
    enum ErrorCode { malformed = 1, gone = 2, volumeAbsent = 3 };

    virtual ~Bookmarks() = default;
    [[nodiscard]] virtual Result<QByteArray> create(const QString &path) const = 0;
    // Where the file was when the bookmark was made; nothing when the bookmark cannot be read.
    [[nodiscard]] virtual std::optional<QString> lastKnownPath(const QByteArray &bookmark) const = 0;
    // The file that the bookmark stands for, wherever it is; nothing where the path alone tells it.
    [[nodiscard]] virtual std::optional<FileResource> resource(const QByteArray &bookmark) const = 0;
    [[nodiscard]] virtual Result<Resolved> resolve(const QByteArray &bookmark) const = 0;
};

} // namespace tembra
