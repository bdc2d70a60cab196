#pragma once

#include "windows/onboarding/OnboardingStep.h"

namespace tembra {

// What the onboarding shows, as one value, for scripts and for the tests that drive the program.
struct OnboardingStatus {
    OnboardingStep step = OnboardingStep::done;
    bool isVisible = false;
    // The heading that is shown; empty while nothing is.
    QString heading;
};

} // namespace tembra
