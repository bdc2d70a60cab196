#pragma once

#include "editor/window/EditorStatus.h"
#include "shelf/ShelfStatus.h"
#include "updates/UpdateStatus.h"
#include "windows/onboarding/OnboardingStatus.h"
#include "windows/settings/SettingsPageId.h"

namespace tembra {

// What the program shows and knows now. A value.
struct ProgramStatus {
    QString version;
    ShelfStatus shelf;
    EditorStatus editor;
    OnboardingStatus onboarding;
    UpdateStatus updates;
    // While the settings are shown.
    std::optional<SettingsPageId> settingsPage;
};

} // namespace tembra
