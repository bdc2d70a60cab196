#pragma once

#include "base/Clocks.h"
#include "base/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace tembra {

// Reads and writes files that other programs may write at the same time, so that nothing is ever lost: not
// what they wrote, and not by an end of the program or of the power in between. Paths are absolute; links are
// not followed at their last name. Any thread. Errors: this domain's, else "POSIX".
class FileCoordinator {
public:
    static inline const QString errorDomain = QStringLiteral("Tembra.FileCoordinator");
    enum ErrorCode {
        // The file does not hold what was expected, or another program is writing to it.
        changed = 1,
        // Something already has the new name.
        exists,
        // A link, a folder or anything else that is no file with content.
        notRegular,
        // Longer than `longestFile`.
        tooLarge,
    };
    static constexpr std::int64_t longestFile = std::int64_t{1} << 30;
    // How the names begin that `writeAtomically` uses on its way. Only one that was killed leaves such a
    // file.
    static inline const QString temporaryPrefix = QStringLiteral(".tembra-write-");

    // Whether this is the content that is expected.
    using ContentCheck = std::function<bool(QByteArrayView)>;

    virtual ~FileCoordinator() = default;
    // The whole content.
    [[nodiscard]] virtual Result<QByteArray> read(const QString &path) const = 0;

    // Makes the folder and those above it that are missing, for this user alone. One that is there becomes
    // this user's alone.
    [[nodiscard]] virtual Result<void> makePrivateFolder(const QString &path) const = 0;
    // Writes a file for this user alone. The name leads to the old content or to the new, never to less.
    [[nodiscard]] virtual Result<void> writeAtomically(const QString &path, QByteArrayView bytes) const = 0;
    // Missing is fine.
    [[nodiscard]] virtual Result<void> remove(const QString &path) const = 0;

    // Makes the new file `path` with the permissions, owner and attributes of `like`, and with the date when
    // that was made where one is told. On failure there is none.
    [[nodiscard]] virtual Result<void> writeTemporary(const QString &path, QByteArrayView bytes,
                                                      const QString &like,
                                                      const std::optional<Instant> &createdAt) const = 0;
    // Puts `temporary`, which lies in the same folder and was written with `bytes`, in the place of the file
    // at `path`, if that holds what is expected and nobody is writing to it. It is looked at before and,
    // once it cannot be reached by its name any more, again: `isExpected` is called each time, and only asks.
    // The name is never missing. On failure the file stays as it is or comes back. The temporary is gone
    // afterwards either way; a version of somebody else's that turned up in its place is kept beside the file
    // as "… copy".
    [[nodiscard]] virtual Result<void> replace(const QString &path, const QString &temporary,
                                               QByteArrayView bytes,
                                               const ContentCheck &isExpected) const = 0;
    // Clears away what a program that was killed in `replace` left: a temporary that holds neither what the
    // file held nor what it was to hold is somebody else's version of it and kept beside it as "… copy".
    [[nodiscard]] virtual Result<void> clearTemporary(const QString &path, const QString &temporary,
                                                      const ContentCheck &isKnown) const = 0;
    // Renames the file if it holds what is expected; never replaces another.
    [[nodiscard]] virtual Result<void> moveIfUnchanged(const QString &from, const QString &to,
                                                       const ContentCheck &isExpected) const = 0;
};

} // namespace tembra
