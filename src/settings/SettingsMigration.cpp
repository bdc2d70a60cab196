#include "settings/SettingsMigration.h"

#include "platform/UserDefaults.h"
#include "settings/AppSettingsState.h"
#include "settings/FolderPreferences.h"
#include "settings/SettingsKeys.h"

namespace tembra {

void migrateExistingInstall(UserDefaults &defaults, const FolderPreferences &folderPreferences) {
    const bool exists = defaults.boolean(settingsKey::hasCompletedOnboarding).value_or(false) ||
                        defaults.string(folderPreferences.legacyFolderKey).has_value();
    if (!exists)
        return;
    if (!defaults.contains(settingsKey::hoverOnTabToOpen))
        defaults.setBoolean(settingsKey::hoverOnTabToOpen, true);
    if (!defaults.contains(settingsKey::automaticallyCopyScreenshots))
        defaults.setBoolean(settingsKey::automaticallyCopyScreenshots, false);
}

void keepNewInstall(UserDefaults &defaults, const AppSettingsState &state) {
    if (!defaults.contains(settingsKey::hoverOnTabToOpen))
        defaults.setBoolean(settingsKey::hoverOnTabToOpen, state.hoverOnTabToOpen);
    if (!defaults.contains(settingsKey::automaticallyCopyScreenshots))
        defaults.setBoolean(settingsKey::automaticallyCopyScreenshots, state.automaticallyCopyScreenshots);
}

void markAutoCleanSafetyReview(UserDefaults &defaults) {
    if (defaults.contains(settingsKey::autoCleanSafetyReview))
        return;
    const bool isOff = defaults.integer(settingsKey::screenshotAutoCleanDays).value_or(0) == 0;
    defaults.setInteger(settingsKey::autoCleanSafetyReview, isOff ? 2 : 0);
}

} // namespace tembra
