#include "shelf/ShelfTabs.h"

namespace tembra {

std::vector<ShelfTab> shownTabs(const AppSettingsState &settings) {
    std::vector<ShelfTab> tabs;
    if (settings.fileTrayEnabled)
        tabs.push_back(ShelfTab::fileTray);
    tabs.push_back(ShelfTab::screenshots);
    if (settings.imageToTextEnabled)
        tabs.push_back(ShelfTab::imageToText);
    return tabs;
}

} // namespace tembra
