#include "windows/onboarding/OnboardingStep.h"

#include "settings/AppSettingsState.h"
#include "windows/onboarding/OnboardingScene.h"

#include <gtest/gtest.h>

using namespace tembra;

TEST(OnboardingStep, nothingThatIsAnsweredIsAskedAgain) {
    struct Case {
        const char *name;
        bool isComplete;
        bool hasFolder;
        bool hasCaught;
        bool isLost;
        OnboardingStep step;
    };
    using Step = OnboardingStep;
    for (const Case &c :
         {Case{"first run", false, false, false, false, Step::introduction},
          Case{"a capture without a folder is none", false, false, true, false, Step::introduction},
          Case{"the folder's disk is away", false, false, false, true, Step::folder},
          Case{"folder chosen", false, true, false, false, Step::firstScreenshot},
          Case{"only the last button is left", false, true, true, false, Step::done},
          Case{"over", true, true, true, false, Step::done},
          Case{"over without a capture", true, true, false, false, Step::done},
          Case{"over, and the folder was lost since", true, false, false, true, Step::done}}) {
        const AppSettingsState state{.hasCompletedOnboarding = c.isComplete,
                                     .hasCaughtFirstScreenshot = c.hasCaught,
                                     .hasFolderAccess = c.hasFolder};
        EXPECT_EQ(onboardingStep(state, c.isLost), c.step) << c.name;
    }
}

TEST(OnboardingScene, theShelfComesDownForThePointerAndGoesWhenItHasLeft) {
    using Time = OnboardingFrame::Time;
    constexpr double atEdge = 4;
    constexpr double bottomOfShelf = 104;
    const Time length = OnboardingFrame::duration(OnboardingScene::introduction);
    bool wasAtEdge = false;
    double before = 0;
    for (Time time{0}; time < length; time += Time(0.01)) {
        const OnboardingFrame frame = OnboardingFrame::of(OnboardingScene::introduction, time);
        wasAtEdge = wasAtEdge || frame.pointer->y() < atEdge;
        if (frame.openness > before) {
            EXPECT_TRUE(wasAtEdge) << time.count();
        }
        if (frame.openness < before) {
            EXPECT_GT(frame.pointer->y(), bottomOfShelf) << time.count();
        }
        before = frame.openness;
    }
    EXPECT_EQ(before, 0) << "it begins anew as it has ended";
    EXPECT_EQ(OnboardingFrame::of(OnboardingScene::introduction, {}).pointer,
              OnboardingFrame::of(OnboardingScene::introduction, length).pointer);
    EXPECT_EQ(OnboardingFrame::still(OnboardingScene::introduction).openness, 1);
}
