#pragma once

#include "platform/FolderFiles.h"
#include "platform/linux/LinuxFileFacts.h"

#include <string>

struct dirent;

namespace tembra {

// One listing of a folder: readdir and statx relative to the folder's descriptor, so that nothing outside it
// is met even when names change while it runs.
class FolderWalk {
public:
    FolderWalk(const LinuxFileFactsReader &reader, const FolderFiles::Visit &visit);

    [[nodiscard]] Result<void> run(const QString &folder, FolderFiles::Subfolders subfolders);

private:
    // Takes the descriptor over. `prefix` is the walked folder's path below the first, with a slash at its
    // end. Gives 0 or the errno.
    int walk(int folder, const std::string &prefix);
    void meet(int folder, const dirent &entry, const std::string &prefix);
    [[nodiscard]] bool isEntered(std::uint64_t mount) const;

    const LinuxFileFactsReader &m_reader;
    const FolderFiles::Visit &m_visit;
    FolderFiles::Subfolders m_subfolders = FolderFiles::Subfolders::passedOver;
    // Of the folder that is walked.
    std::uint64_t m_mount = 0;
    int m_depth = 0;
    bool m_goesOn = true;
};

} // namespace tembra
