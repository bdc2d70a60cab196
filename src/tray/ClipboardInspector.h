#pragma once

#include "platform/FileFacts.h"
#include "platform/FileReferences.h"
#include "platform/StandardFolders.h"
#include "platform/Volumes.h"
#include "tray/ClipboardEntry.h"
#include "tray/ClipboardFileState.h"

#include <QStringList>

namespace tembra {

// What becomes of the files of the tray: makes their entries and finds them again. Any thread.
class ClipboardInspector {
public:
    // What is in the Trash of `folders` counts as deleted. The services must outlive it.
    ClipboardInspector(const FileFactsReader &files, const FileReferences &references, const Volumes &volumes,
                       const StandardFolders &folders);

    // An entry for a file that is there. `neighbour` is another one that may save asking for the volume.
    [[nodiscard]] ClipboardEntry entryFor(const QString &path, const FileFacts &facts,
                                          const ClipboardEntry *neighbour = nullptr) const;
    // The state as far as it is told without looking for the file and without asking another machine: a lost
    // file counts as unavailable.
    [[nodiscard]] ClipboardFileState state(const ClipboardEntry &entry) const;
    // Only a search tells what became of the file: it is not where it was, or is another machine's.
    [[nodiscard]] bool needsSearch(const ClipboardEntry &entry, ClipboardFileState state) const;
    // The entry as it is now that its file is available: at another path, or with a new file in the place of
    // the old one.
    [[nodiscard]] ClipboardEntry refreshed(ClipboardEntry entry) const;

    struct Found {
        ClipboardFileState state;
        ClipboardEntry entry;
    };
    // Looks for a lost file. Takes its time: not for the main thread.
    [[nodiscard]] Found search(const ClipboardEntry &entry) const;

private:
    [[nodiscard]] ClipboardFileState lookAt(const ClipboardEntry &entry) const;
    [[nodiscard]] bool isLost(const ClipboardEntry &entry) const;
    [[nodiscard]] bool isOnItsVolume(const ClipboardEntry &entry, const FileFacts &facts) const;
    [[nodiscard]] bool isTrashed(const QString &path) const;
    [[nodiscard]] std::optional<QString> find(const ClipboardEntry &entry, const QString &mountPoint) const;
    // The entry with its file at the path.
    [[nodiscard]] ClipboardEntry rebound(ClipboardEntry entry, const QString &path) const;

    const FileFactsReader &m_files;
    const FileReferences &m_references;
    const Volumes &m_volumes;
    const QStringList m_trash;
    const QString m_home;
};

} // namespace tembra
