#include "app/AppFlowCoordinator.h"

#include "app/MainMenu.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfController.h"

namespace tembra {

AppFlowCoordinator::AppFlowCoordinator(AppSettings &settings, Workspace &workspace,
                                       std::unique_ptr<ShelfController> shelf,
                                       const OnboardingServices &onboarding, std::function<void()> terminate)
    : m_settings(settings),
      m_workspace(workspace),
      m_terminate(std::move(terminate)),
      m_onboarding(std::make_unique<OnboardingCoordinator>(settings, std::move(shelf), onboarding)) {}

AppFlowCoordinator::~AppFlowCoordinator() = default;

void AppFlowCoordinator::start() {
    installMainMenu();
    // What others changed while the machine slept is asked again.
    m_observation = m_workspace.observe([this](Workspace::Event event) {
        if (event == Workspace::Event::didWake)
            m_settings.refreshScreenshotPreview();
    });
    m_onboarding->start();
}

void AppFlowCoordinator::reopen() {
    m_onboarding->reopen();
}

void AppFlowCoordinator::stop() {
    m_observation.reset();
    m_onboarding->stop();
}

ShelfController &AppFlowCoordinator::shelfController() {
    return m_onboarding->shelfController();
}

void AppFlowCoordinator::installMainMenu() {
    m_mainMenu = std::make_unique<MainMenu>();
    QObject::connect(m_mainMenu.get(), &MainMenu::terminate, m_mainMenu.get(), [this] { m_terminate(); });
    QObject::connect(m_mainMenu.get(), &MainMenu::hideTembra, m_mainMenu.get(),
                     [this] { shelfController().collapse(); });
}

} // namespace tembra
