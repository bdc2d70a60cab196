#pragma once

#include "base/Result.h"
#include "platform/Bookmarks.h"
#include "platform/FileFacts.h"
#include "platform/StandardFolders.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tembra {

// The grant to the folder that the user chose. A value: a failed grant or restore leaves it as it was. Paths
// are absolute and clean. Main thread.
class ScreenshotFolderAccess {
public:
    // The services must outlive every copy.
    ScreenshotFolderAccess(const Bookmarks &bookmarks, const FileFactsReader &files,
                           const StandardFolders &folders);

    // The folder on which access is held; nothing when none is.
    [[nodiscard]] const std::optional<QString> &scopedURL() const { return m_folder; }
    // The folder that the grant stands for.
    [[nodiscard]] const std::optional<QString> &folder() const { return m_folder; }

    // Opens access to a folder that the user picked, in place of the one held, and gives the bookmark to
    // store.
    [[nodiscard]] Result<QByteArray> grant(const QString &folder);
    // Opens access by a stored bookmark; without one nothing happens. Gives the bookmark to store in its
    // place when it was stale.
    [[nodiscard]] Result<std::optional<QByteArray>> restore(const std::optional<QByteArray> &bookmark);
    // Where the folder of a stored bookmark was when it was last found.
    [[nodiscard]] std::optional<QString> lastKnownFolder(const QByteArray &bookmark) const;
    void stop() { m_folder.reset(); }

    // Whether a folder can really be used: it is a directory, not in the Trash, can be opened, and with
    // `enumerateContents` also listed. Errors: "Cocoa" with a CocoaError code, or "POSIX".
    [[nodiscard]] Result<void> validate(const QString &folder, bool enumerateContents) const;

private:
    [[nodiscard]] bool isInTrash(const QString &folder) const;

    const Bookmarks *m_bookmarks;
    const FileFactsReader *m_files;
    StandardFolders m_folders;
    std::optional<QString> m_folder;
};

} // namespace tembra
