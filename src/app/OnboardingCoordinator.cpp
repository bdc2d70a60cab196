#include "app/OnboardingCoordinator.h"

#include "screenshots/DesktopScreenshotOrganizer.h"
#include "screenshots/ScreenshotDestination.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfController.h"

#include <QFileInfo>

namespace tembra {

OnboardingCoordinator::OnboardingCoordinator(AppSettings &settings, std::unique_ptr<ShelfController> shelf)
    : m_settings(settings), m_shelf(std::move(shelf)) {
    m_shelf->onDestinationRead = [this](const ScreenshotDestination &destination) { adopt(destination); };
}

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

void OnboardingCoordinator::adopt(const ScreenshotDestination &destination) {
    const bool wasGranted = m_settings.state().hasFolderAccess || m_settings.isFolderAccessLost();
    if (wasGranted || destination.kind != ScreenshotDestination::Kind::folder)
        return;
    // The tool makes its folder when it saves there first; the shelf is to be ready for that.
    Result<void> adopted;
    if (!QFileInfo(destination.folder).isDir())
        adopted = DesktopScreenshotOrganizer::createFolder(destination.folder);
    if (adopted)
        adopted = m_shelf->acceptScreenshotFolder(destination.folder, true);
    if (!adopted)
        qWarning("The folder of the screenshot tool cannot be used: %s",
                 qUtf8Printable(adopted.error().message));
}

} // namespace tembra
