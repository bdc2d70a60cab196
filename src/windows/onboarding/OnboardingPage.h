#pragma once

#include "windows/onboarding/OnboardingScene.h"
#include "windows/onboarding/OnboardingState.h"

namespace tembra {

// What the window shows of a state, in words: a pure function of it.
struct OnboardingPage {
    OnboardingScene scene = OnboardingScene::introduction;
    QString heading;
    QString text;
    // A path; empty for none.
    QString path;
    QString note;
    bool isFailure = false;
    // Titles; empty where there is no such button.
    QString primary;
    QString secondary;
    QString link;
    // Something is under way that must end before the user goes on.
    bool isBusy = false;

    [[nodiscard]] static OnboardingPage of(const OnboardingState &state);
};

} // namespace tembra
