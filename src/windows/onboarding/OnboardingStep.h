#pragma once

#include <QString>

namespace tembra {

struct AppSettingsState;

// How far the user has come with setting Tembra up; in this order.
enum class OnboardingStep { introduction, folder, firstScreenshot, done };

inline constexpr int onboardingStepCount = 3;

// Where the program takes up the onboarding at its start: what is answered is not asked again.
[[nodiscard]] OnboardingStep onboardingStep(const AppSettingsState &state, bool isFolderLost);

// For scripts.
[[nodiscard]] QString commandName(OnboardingStep step);

} // namespace tembra
