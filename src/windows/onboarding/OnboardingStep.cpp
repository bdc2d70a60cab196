#include "windows/onboarding/OnboardingStep.h"

#include "settings/AppSettingsState.h"

namespace tembra {

OnboardingStep onboardingStep(const AppSettingsState &state, bool isFolderLost) {
    if (state.hasCompletedOnboarding)
        return OnboardingStep::done;
    if (state.hasFolderAccess)
        return state.hasCaughtFirstScreenshot ? OnboardingStep::done : OnboardingStep::firstScreenshot;
    return isFolderLost ? OnboardingStep::folder : OnboardingStep::introduction;
}

QString commandName(OnboardingStep step) {
    switch (step) {
    case OnboardingStep::introduction:
        return QStringLiteral("introduction");
    case OnboardingStep::folder:
        return QStringLiteral("folder");
    case OnboardingStep::firstScreenshot:
        return QStringLiteral("firstScreenshot");
    case OnboardingStep::done:
        return QStringLiteral("done");
    }
    Q_UNREACHABLE();
}

} // namespace tembra
