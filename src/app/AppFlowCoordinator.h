#pragma once

#include "app/OnboardingCoordinator.h"
#include "platform/Workspace.h"

#include <functional>
#include <memory>

namespace tembra {

class AppSettings;
class MainMenu;
class ShelfController;

// The flow of the program above its windows: what is shown at the start, when it is opened again, and at the
// end. Main thread; owned by AppDelegate.
class AppFlowCoordinator {
public:
    AppFlowCoordinator(AppSettings &settings, Workspace &workspace, std::unique_ptr<ShelfController> shelf,
                       const OnboardingServices &onboarding, std::function<void()> terminate);
    ~AppFlowCoordinator();
    AppFlowCoordinator(const AppFlowCoordinator &) = delete;
    AppFlowCoordinator &operator=(const AppFlowCoordinator &) = delete;

    void start();
    void reopen();
    void stop();

    [[nodiscard]] ShelfController &shelfController();
    [[nodiscard]] OnboardingStatus onboardingStatus() const { return m_onboarding->status(); }
    [[nodiscard]] MainMenu &mainMenu() { return *m_mainMenu; }

private:
    void installMainMenu();

    AppSettings &m_settings;
    Workspace &m_workspace;
    const std::function<void()> m_terminate;
    std::unique_ptr<MainMenu> m_mainMenu;
    std::unique_ptr<OnboardingCoordinator> m_onboarding;
    std::unique_ptr<Workspace::Observation> m_observation;
};

} // namespace tembra
