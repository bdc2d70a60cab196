#include "shelf/ScreenshotTiles.h"

#include <utility>

namespace tembra {

std::vector<FileGridState::Section> screenshotTiles(std::vector<ScreenshotSection> sections,
                                                    const QSet<QString> &pinnedPaths,
                                                    const QHash<ScreenshotFileIdentity, QString> &edited) {
    std::vector<FileGridState::Section> result;
    result.reserve(sections.size());
    for (ScreenshotSection &section : sections) {
        FileGridState::Section &tiles = result.emplace_back(title(section.kind));
        tiles.tiles.reserve(section.shots.size());
        for (Shot &shot : section.shots) {
            const bool isPinned = pinnedPaths.contains(shot.location);
            const auto revision = edited.constFind(shot.identity);
            const bool isEdited = revision != edited.cend() && shot.hasRevision(*revision);
            tiles.tiles.push_back({.id = std::move(shot.identity),
                                   .path = std::move(shot.location),
                                   .revision = std::move(shot.stamp),
                                   .isPinned = isPinned,
                                   .isEdited = isEdited});
        }
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
