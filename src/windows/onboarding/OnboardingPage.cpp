#include "windows/onboarding/OnboardingPage.h"

#include <QCoreApplication>

namespace tembra {

namespace {

QString text(const char *source, int count = -1) {
    return QCoreApplication::translate("Onboarding", source, nullptr, count);
}

void describeIntroduction(OnboardingPage &page) {
    page.scene = OnboardingScene::introduction;
    page.heading = text(QT_TRANSLATE_NOOP("Onboarding", "Your screenshots, always at hand"));
    page.text = text(QT_TRANSLATE_NOOP("Onboarding", "Tembra keeps them at the top of your screen. Move the "
                                                     "pointer to the edge, and they come down to meet it."));
    page.primary = text(QT_TRANSLATE_NOOP("Onboarding", "Continue"));
}

void describeFolder(const OnboardingState &state, OnboardingPage &page) {
    page.scene = OnboardingScene::shelf;
    page.heading = text(QT_TRANSLATE_NOOP("Onboarding", "Where should screenshots go?"));
    page.text = text(QT_TRANSLATE_NOOP("Onboarding", "New screenshots will be saved here and appear in "
                                                     "Tembra, at the top of your screen."));
    page.path = state.path;
    page.isBusy = state.folder == OnboardingState::Folder::looking;
    const QString choose = text(QT_TRANSLATE_NOOP("Onboarding", "Choose Folder"));
    if (state.path.isEmpty()) {
        page.primary = choose;
        return;
    }
    page.primary = state.isChosen ? text(QT_TRANSLATE_NOOP("Onboarding", "Continue"))
                                  : text(QT_TRANSLATE_NOOP("Onboarding", "Use This Folder"));
    page.secondary = choose;
}

void describeMove(const OnboardingState &state, OnboardingPage &page) {
    page.scene = OnboardingScene::shelf;
    page.heading = text(QT_TRANSLATE_NOOP("Onboarding", "Bring along what you have?"));
    page.text = text(QT_TRANSLATE_N_NOOP("Onboarding", "%n screenshots lie on your Desktop. Tembra can move "
                                                       "them to the folder you chose."),
                     state.screenshotsOnDesktop);
    page.path = state.path;
    page.isBusy = state.folder == OnboardingState::Folder::moving;
    page.primary = page.isBusy ? text(QT_TRANSLATE_NOOP("Onboarding", "Moving…"))
                               : text(QT_TRANSLATE_NOOP("Onboarding", "Move Screenshots"));
    page.secondary = text(QT_TRANSLATE_NOOP("Onboarding", "Leave Them"));
}

void describeFirstScreenshot(const OnboardingState &state, OnboardingPage &page) {
    if (state.hasCaught) {
        page.scene = OnboardingScene::caught;
        page.heading = text(QT_TRANSLATE_NOOP("Onboarding", "Got it! First one caught"));
        page.text = text(QT_TRANSLATE_NOOP("Onboarding", "It is on your shelf now. Move the pointer to the "
                                                         "top of your screen whenever you need it."));
        page.primary = text(QT_TRANSLATE_NOOP("Onboarding", "Done"));
        return;
    }
    page.scene = OnboardingScene::waiting;
    page.heading = text(QT_TRANSLATE_NOOP("Onboarding", "Take your first screenshot"));
    page.text = text(QT_TRANSLATE_NOOP("Onboarding", "Take a screenshot the way you always do, with Print "
                                                     "for\u00a0"
                                                     "example. Tembra waits for it here."));
    page.link = text(QT_TRANSLATE_NOOP("Onboarding", "Skip"));
}

} // namespace

OnboardingPage OnboardingPage::of(const OnboardingState &state) {
    OnboardingPage page;
    page.note = state.note;
    page.isFailure = state.isFailure;
    switch (state.step) {
    case OnboardingStep::introduction:
        describeIntroduction(page);
        break;
    case OnboardingStep::folder:
        if (state.folder == OnboardingState::Folder::asking ||
            state.folder == OnboardingState::Folder::looking)
            describeFolder(state, page);
        else
            describeMove(state, page);
        break;
    case OnboardingStep::firstScreenshot:
    case OnboardingStep::done:
        describeFirstScreenshot(state, page);
        break;
    }
    return page;
}

} // namespace tembra
