#pragma once

#include "settings/AppSettingsState.h"
#include "shelf/ShelfTab.h"

#include <vector>

namespace tembra {

// The tabs that the strip shows, left to right: the file tray and the text recognition when their settings
// are on, the screenshots always. Tabs whose content this build does not have are left out.
[[nodiscard]] std::vector<ShelfTab> shownTabs(const AppSettingsState &settings,
                                              const std::vector<ShelfTab> &built);

} // namespace tembra
