#pragma once

#include <memory>

namespace tembra {

class AppSettings;
class ShelfController;
struct ScreenshotDestination;

// Decides what the user meets first, and owns the shelf. Main thread; owned by AppFlowCoordinator.
//
// On the first start it adopts the folder that the desktop's screenshot tool saves into, so that the shelf
// works without a question; where that folder cannot be used the shelf asks for one. It always goes straight
// to the shelf.
class OnboardingCoordinator {
public:
    OnboardingCoordinator(AppSettings &settings, std::unique_ptr<ShelfController> shelf);
    ~OnboardingCoordinator();
    OnboardingCoordinator(const OnboardingCoordinator &) = delete;
    OnboardingCoordinator &operator=(const OnboardingCoordinator &) = delete;

    void start();
    void stop();
    // Opens the shelf.
    void reopen();

    [[nodiscard]] ShelfController &shelfController() { return *m_shelf; }

private:
    void adopt(const ScreenshotDestination &destination);

    AppSettings &m_settings;
    std::unique_ptr<ShelfController> m_shelf;
};

} // namespace tembra
