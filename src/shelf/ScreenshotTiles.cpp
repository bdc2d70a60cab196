#include "shelf/ScreenshotTiles.h"

namespace tembra {

std::vector<FileGridState::Section> screenshotTiles(const std::vector<ScreenshotSection> &sections,
                                                    const QSet<QString> &pinnedPaths) {
    std::vector<FileGridState::Section> result;
    result.reserve(sections.size());
    for (const ScreenshotSection &section : sections) {
        FileGridState::Section &tiles = result.emplace_back(title(section.kind));
        tiles.tiles.reserve(section.shots.size());
        for (const Shot &shot : section.shots)
            tiles.tiles.push_back({.id = shot.identity,
                                   .path = shot.location,
                                   .revision = shot.stamp,
                                   .isPinned = pinnedPaths.contains(shot.location)});
    }
    return result;
}

QSet<ScreenshotFileIdentity> screenshotIdentities(const QSet<FileTileID> &ids) {
    QSet<ScreenshotFileIdentity> identities;
    for (const FileTileID &id : ids) {
        if (const auto *identity = std::get_if<ScreenshotFileIdentity>(&id))
            identities.insert(*identity);
    }
    return identities;
}

QSet<FileTileID> screenshotTileIDs(const QSet<ScreenshotFileIdentity> &identities) {
    return {identities.cbegin(), identities.cend()};
}

} // namespace tembra
