#pragma once

#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/StandardFolders.h"
#include "platform/Thumbnails.h"
#include "windows/onboarding/OnboardingStatus.h"

#include <memory>

namespace tembra {

class AppSettings;
class OnboardingFlow;
class OnboardingWindow;
class ScreenshotCaptureDetector;
class ShelfController;
struct ScreenshotDestination;

// What the onboarding takes from the platform; everything outlives it.
struct OnboardingServices {
    const StandardFolders &folders;
    const ScreenshotCaptureDetector &detector;
    // How the tool's user has captures named; asked on the queue.
    std::function<QString()> customPrefix;
    Thumbnails &thumbnails;
    // Looks at what lies on the Desktop, and moves it.
    SerialQueue &desktopQueue;
    Scheduler &scheduler;
};

// Decides what the user meets first, and owns the shelf. Main thread; owned by AppFlowCoordinator.
//
// The onboarding's window is shown at each start, and when the program is opened again, until the user has
// come to its end; the shelf works meanwhile, so that the first capture is seen. Somebody who has come to the
// end and has no folder gets the one that the screenshot tool saves into, without a question.
class OnboardingCoordinator {
public:
    OnboardingCoordinator(AppSettings &settings, std::unique_ptr<ShelfController> shelf,
                          const OnboardingServices &services);
    ~OnboardingCoordinator();
    OnboardingCoordinator(const OnboardingCoordinator &) = delete;
    OnboardingCoordinator &operator=(const OnboardingCoordinator &) = delete;

    void start();
    void stop();
    // Brings the onboarding to the front, or opens the shelf when that is over.
    void reopen();

    [[nodiscard]] ShelfController &shelfController() { return *m_shelf; }
    [[nodiscard]] OnboardingStatus status() const;

private:
    void connectFlow();
    [[nodiscard]] bool isUnfinished() const;
    void receiveDestination(const ScreenshotDestination &destination);
    void adopt(const ScreenshotDestination &destination);
    void showWindow();
    void makeWindow();
    void closeWindow();
    // By the user.
    void windowClosed();
    void finish();

    AppSettings &m_settings;
    std::unique_ptr<ShelfController> m_shelf;
    std::unique_ptr<OnboardingFlow> m_flow;
    // Deleted later, as it may be what asks for it.
    struct DeleteLater {
        void operator()(OnboardingWindow *window) const;
    };
    std::unique_ptr<OnboardingWindow, DeleteLater> m_window;
};

} // namespace tembra
