#pragma once

#include "platform/FileFacts.h"

#include <QString>
#include <QStringList>

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

private:
    [[nodiscard]] bool isAt(const QString &path, const FileResource &resource) const;
    [[nodiscard]] bool isOnVolume(const QString &folder, std::uint64_t volume) const;
    [[nodiscard]] std::optional<QString> findIn(const QString &folder, const FileResource &resource) const;

    const FileFactsReader &m_reader;
    const QStringList m_furtherFolders;
};

} // namespace tembra
