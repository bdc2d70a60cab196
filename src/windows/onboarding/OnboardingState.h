#pragma once

#include "windows/onboarding/OnboardingStep.h"

#include <QImage>
#include <QString>

namespace tembra {

// Everything that the onboarding's window shows, as one value. OnboardingFlow owns the current one.
struct OnboardingState {
    // What goes on in the step of the folder.
    enum class Folder { asking, looking, offeringMove, moving };

    OnboardingStep step = OnboardingStep::introduction;
    // The furthest step that can be gone to.
    OnboardingStep reached = OnboardingStep::introduction;

    Folder folder = Folder::asking;
    // The folder that is suggested, or that was chosen, as the user reads it; empty when there is none.
    QString path;
    // The folder was chosen before.
    bool isChosen = false;
    // Of the user, on the Desktop, while moving them is offered.
    int screenshotsOnDesktop = 0;

    // A capture has arrived in the last step.
    bool hasCaught = false;
    QImage capture;

    // What became of the latest action, in a sentence; empty for nothing.
    QString note;
    bool isFailure = false;

    bool operator==(const OnboardingState &) const = default;
};

} // namespace tembra
