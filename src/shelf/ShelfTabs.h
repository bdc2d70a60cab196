#pragma once

#include "settings/AppSettingsState.h"
#include "shelf/ShelfTab.h"

#include <vector>

namespace tembra {

// The tabs that the strip shows, left to right: the file tray and the text recognition when their settings
// are on, the screenshots always.
[[nodiscard]] std::vector<ShelfTab> shownTabs(const AppSettingsState &settings);

} // namespace tembra
