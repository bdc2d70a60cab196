#include "app/OnboardingCoordinator.h"

#include "screenshots/DesktopScreenshotOrganizer.h"
#include "screenshots/ScreenshotDestination.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfController.h"
#include "windows/onboarding/OnboardingFlow.h"
#include "windows/onboarding/OnboardingWindow.h"

#include <QFileInfo>

namespace tembra {

void OnboardingCoordinator::DeleteLater::operator()(OnboardingWindow *window) const {
    window->disconnect();
    window->hide();
    window->deleteLater();
}

OnboardingCoordinator::OnboardingCoordinator(AppSettings &settings, std::unique_ptr<ShelfController> shelf,
                                             const OnboardingServices &services)
    : m_settings(settings), m_shelf(std::move(shelf)) {
    ShelfController &controller = *m_shelf;
    auto desktop = std::make_unique<DesktopScreenshots>(services.folders.desktop, services.detector,
                                                        services.customPrefix, services.desktopQueue,
                                                        services.scheduler);
    OnboardingFlow::Hooks hooks{.pickFolder = [&controller] { return controller.pickFolder(); },
                                .acceptFolder =
                                    [&controller](const QString &folder, bool adopting) {
                                        return controller.acceptScreenshotFolder(folder, adopting);
                                    },
                                .suspendFolder = [&controller] { controller.suspendFolder(); },
                                .resumeFolder = [&controller] { controller.resumeFolder(); },
                                .latestCapture =
                                    [&controller] {
                                        const auto capture = controller.status().lastCapture;
                                        return capture ? capture->path : QString();
                                    }};
    m_flow = std::make_unique<OnboardingFlow>(settings, std::move(desktop), services.thumbnails,
                                              services.folders.home, std::move(hooks));
    connectFlow();
}

OnboardingCoordinator::~OnboardingCoordinator() = default;

void OnboardingCoordinator::connectFlow() {
    m_shelf->onDestinationRead = [this](const ScreenshotDestination &destination) {
        receiveDestination(destination);
    };
    QObject::connect(m_flow.get(), &OnboardingFlow::changed, m_flow.get(), [this] {
        if (m_window)
            m_window->apply(m_flow->state());
    });
    QObject::connect(m_flow.get(), &OnboardingFlow::finished, m_flow.get(), [this] { finish(); });
}

bool OnboardingCoordinator::isUnfinished() const {
    return !m_settings.state().hasCompletedOnboarding;
}

void OnboardingCoordinator::start() {
    // Everything may have been answered, with only the last button not pressed.
    if (onboardingStep(m_settings.state(), m_settings.isFolderAccessLost()) == OnboardingStep::done)
        m_settings.completeOnboarding();
    m_shelf->start();
    if (isUnfinished())
        showWindow();
}

void OnboardingCoordinator::stop() {
    closeWindow();
    m_shelf->stop();
}

void OnboardingCoordinator::reopen() {
    if (!isUnfinished())
        return m_shelf->reopenFromDock();
    // The tool's setting may have been changed since.
    m_shelf->checkDestination();
    showWindow();
    m_window->restartAnimation();
}

OnboardingStatus OnboardingCoordinator::status() const {
    if (!isUnfinished())
        return {};
    return {.step = m_flow->state().step,
            .isVisible = m_window && m_window->isVisible(),
            .heading = m_window ? m_window->page().heading : QString()};
}

void OnboardingCoordinator::receiveDestination(const ScreenshotDestination &destination) {
    if (isUnfinished())
        m_flow->receiveDestination(destination);
    else
        adopt(destination);
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

void OnboardingCoordinator::showWindow() {
    if (!m_window)
        makeWindow();
    m_flow->begin();
    m_window->present();
}

void OnboardingCoordinator::makeWindow() {
    m_window.reset(new OnboardingWindow);
    using Window = OnboardingWindow;
    OnboardingFlow *flow = m_flow.get();
    QObject::connect(m_window.get(), &Window::primaryRequested, flow, &OnboardingFlow::primary);
    QObject::connect(m_window.get(), &Window::secondaryRequested, flow, &OnboardingFlow::secondary);
    QObject::connect(m_window.get(), &Window::linkRequested, flow, &OnboardingFlow::skip);
    QObject::connect(m_window.get(), &Window::stepRequested, flow, &OnboardingFlow::show);
    QObject::connect(m_window.get(), &Window::closed, flow, [this] { windowClosed(); });
}

void OnboardingCoordinator::closeWindow() {
    m_window.reset();
}

void OnboardingCoordinator::windowClosed() {
    closeWindow();
    // Whoever has caught a screenshot has seen everything.
    if (onboardingStep(m_settings.state(), m_settings.isFolderAccessLost()) == OnboardingStep::done)
        m_settings.completeOnboarding();
}

void OnboardingCoordinator::finish() {
    m_settings.completeOnboarding();
    // The folder may have gone meanwhile; then there is still something to ask.
    if (isUnfinished())
        return m_flow->show(OnboardingStep::folder);
    closeWindow();
    m_shelf->openManually();
}

} // namespace tembra
