#pragma once

namespace tembra {

struct AppSettingsState;
struct FolderPreferences;
class UserDefaults;

// What installs of earlier versions need once, before the settings are read.
//
// An install that exists already keeps the behaviour it had: tabs switch on hover, captures are not copied.
// New ones get neither key written and see the defaults of today, which are the opposite.
void migrateExistingInstall(UserDefaults &defaults, const FolderPreferences &folderPreferences);

// The same install must not be taken for an earlier version's at its next start, only because its onboarding
// is over by then: what it has of both is written down.
void keepNewInstall(UserDefaults &defaults, const AppSettingsState &state);

// Notes whether an auto-clean that is on already still has to be confirmed by the user.
void markAutoCleanSafetyReview(UserDefaults &defaults);

} // namespace tembra
