#pragma once

#include "platform/FolderFiles.h"
#include "platform/linux/LinuxFileFacts.h"

#include <string>

namespace tembra {

// One listing of a folder: readdir and statx relative to the folder's descriptor, so that nothing outside it
// is met even when names change while it runs.
class FolderWalk {
public:
    FolderWalk(const LinuxFileFactsReader &reader, const FolderFiles::Visit &visit);

    [[nodiscard]] Result<void> run(const QString &folder, bool subfolders);

private:
    // Takes the descriptor over. `prefix` is the walked folder's path below the first, with a slash at its
    // end. Gives 0 or the errno.
    int walk(int folder, const std::string &prefix, bool subfolders);
    void meet(int folder, const char *name, const std::string &prefix, bool subfolders);

    const LinuxFileFactsReader &m_reader;
    const FolderFiles::Visit &m_visit;
    int m_depth = 0;
    bool m_goesOn = true;
};

} // namespace tembra
