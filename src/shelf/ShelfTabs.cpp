#include "shelf/ShelfTabs.h"

#include <algorithm>

namespace tembra {

std::vector<ShelfTab> shownTabs(const AppSettingsState &settings, const std::vector<ShelfTab> &built) {
    std::vector<ShelfTab> tabs;
    if (settings.fileTrayEnabled)
        tabs.push_back(ShelfTab::fileTray);
    tabs.push_back(ShelfTab::screenshots);
    if (settings.imageToTextEnabled)
        tabs.push_back(ShelfTab::imageToText);
    std::erase_if(tabs, [&built](ShelfTab tab) { return std::ranges::find(built, tab) == built.end(); });
    return tabs;
}

} // namespace tembra
