#pragma once

#include "platform/FileFacts.h"
#include "platform/StandardFolders.h"

#include <QString>
#include <QStringList>

namespace tembra {

// Whether the watcher may look into the subfolders of a folder: not of those that hold much else.
class ScreenshotFolderTraversal {
public:
    // `files` must outlive it.
    ScreenshotFolderTraversal(const StandardFolders &folders, const FileFactsReader &files);

    // The user's broad folders, the home folder, the one shared between users, and the root.
    [[nodiscard]] const QStringList &sharedFolders() const { return m_sharedFolders; }
    [[nodiscard]] bool includesSubfolders(const QString &folder) const;

private:
    [[nodiscard]] bool isSameFolder(const QString &a, const QString &b) const;

    const FileFactsReader &m_files;
    const QStringList m_sharedFolders;
};

} // namespace tembra
