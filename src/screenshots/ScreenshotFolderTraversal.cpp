#include "screenshots/ScreenshotFolderTraversal.h"

#include "settings/FolderPath.h"

#include <algorithm>

namespace tembra {

ScreenshotFolderTraversal::ScreenshotFolderTraversal(const StandardFolders &folders,
                                                     const FileFactsReader &files)
    : m_files(files), m_sharedFolders{folders.desktop,  folders.documents,    folders.downloads,
                                      folders.pictures, folders.videos,       folders.music,
                                      folders.library,  folders.applications, folders.publicShare,
                                      folders.home,     folders.shared,       folders.root} {}

bool ScreenshotFolderTraversal::includesSubfolders(const QString &folder) const {
    return std::ranges::none_of(m_sharedFolders,
                                [&](const QString &shared) { return isSameFolder(folder, shared); });
}

// The same path, or the same folder mounted at a second place.
bool ScreenshotFolderTraversal::isSameFolder(const QString &a, const QString &b) const {
    if (tembra::isSameFolder(a, b))
        return true;
    const auto factsOfA = m_files.targetFacts(a);
    const auto factsOfB = m_files.targetFacts(b);
    return factsOfA && factsOfB && factsOfA->resource && factsOfA->resource == factsOfB->resource;
}

} // namespace tembra
