#include "app/OnboardingCoordinator.h"

#include "screenshots/DesktopScreenshotOrganizer.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfController.h"

namespace tembra {

OnboardingCoordinator::OnboardingCoordinator(AppSettings &settings, std::unique_ptr<ShelfController> shelf)
    : m_settings(settings), m_shelf(std::move(shelf)) {}

OnboardingCoordinator::~OnboardingCoordinator() = default;

void OnboardingCoordinator::start() {
    m_shelf->start();
}

void OnboardingCoordinator::stop() {
    m_shelf->stop();
}

void OnboardingCoordinator::reopen() {
    m_shelf->reopenFromDock();
}

} // namespace tembra
