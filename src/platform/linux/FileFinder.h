#pragma once

#include "platform/FileFacts.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace tembra {

// Finds a file or folder by its identity after it was renamed or moved: at its last path, in that folder and
// its subfolders, in the neighbour folders, and in further folders named by the caller. The search is
// bounded: what was moved far away is not found. Any thread.
class FileFinder {
public:
    FileFinder(const FileFactsReader &reader, QStringList furtherFolders);

    [[nodiscard]] std::optional<QString> find(const FileResource &resource,
                                              const QString &lastKnownPath) const;
    // In the folder and in those beneath it on its volume, the upper ones first, as far as a bounded number
    // of folders reaches. What is in a Trash is not found.
    [[nodiscard]] std::optional<QString> findBeneath(const QString &folder,
                                                     const FileResource &resource) const;

private:
    [[nodiscard]] bool isAt(const QString &path, const FileResource &resource) const;
    [[nodiscard]] bool isOnVolume(const QString &folder, std::uint64_t volume) const;
    // Calls `onSubfolder` with the name of each folder met on the way.
    [[nodiscard]] std::optional<QString>
    findIn(const QString &folder, const FileResource &resource,
           const std::function<void(const char *name)> &onSubfolder = {}) const;

    const FileFactsReader &m_reader;
    const QStringList m_furtherFolders;
};

} // namespace tembra
