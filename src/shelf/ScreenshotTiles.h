#pragma once

#include "screenshots/ScreenshotSection.h"
#include "shelf/FileGridState.h"

#include <QSet>

#include <vector>

namespace tembra {

// The sections of screenshots as the grid shows them.
[[nodiscard]] std::vector<FileGridState::Section> screenshotTiles(std::vector<ScreenshotSection> sections,
                                                                  const QSet<QString> &pinnedPaths);
// Of those tiles that stand for screenshots.
[[nodiscard]] QSet<ScreenshotFileIdentity> screenshotIdentities(const QSet<FileTileID> &ids);
[[nodiscard]] QSet<FileTileID> screenshotTileIDs(const QSet<ScreenshotFileIdentity> &identities);

} // namespace tembra
