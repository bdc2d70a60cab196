#pragma once

#include "settings/AppSettingsState.h"

namespace tembra {

class UserDefaults;

// The state as stored, each missing or foreign value replaced by its default. What is derived rather than
// stored (the folder, its access, the floating thumbnail) is left at its default.
[[nodiscard]] AppSettingsState loadSettings(const UserDefaults &defaults);

} // namespace tembra
