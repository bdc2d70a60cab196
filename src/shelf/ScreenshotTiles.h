#pragma once

#include "screenshots/ScreenshotSection.h"
#include "shelf/FileGridState.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace tembra {

// The sections of screenshots as the grid shows them. `edited` has the revision of each file that the editor
// wrote: one that somebody else wrote since carries no edits any more.
[[nodiscard]] std::vector<FileGridState::Section>
screenshotTiles(std::vector<ScreenshotSection> sections, const QSet<QString> &pinnedPaths,
                const QHash<ScreenshotFileIdentity, QString> &edited);
// Of those tiles that stand for screenshots.
[[nodiscard]] QSet<ScreenshotFileIdentity> screenshotIdentities(const QSet<FileTileID> &ids);
[[nodiscard]] QSet<FileTileID> screenshotTileIDs(const QSet<ScreenshotFileIdentity> &identities);

} // namespace tembra
