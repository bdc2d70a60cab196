#pragma once

#include "platform/Thumbnails.h"
#include "screenshots/ScreenshotDestination.h"
#include "windows/onboarding/DesktopScreenshots.h"
#include "windows/onboarding/OnboardingState.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace tembra {

class AppSettings;
struct AppSettingsState;

// Leads through the steps of the onboarding: what each answer of the user does, and what comes next. It knows
// no window. Main thread; owned by OnboardingCoordinator.
class OnboardingFlow final : public QObject {
    Q_OBJECT

public:
    // What is done elsewhere.
    struct Hooks {
        // Asks the user for a folder; nothing when the user changed their mind.
        std::function<std::optional<QString>()> pickFolder;
        // Makes it the folder that is shown; `adopting` leaves the screenshot tool's setting as it is.
        std::function<Result<void>(const QString &folder, bool adopting)> acceptFolder;
        // Around the move of screenshots into the folder.
        std::function<void()> suspendFolder;
        std::function<void()> resumeFolder;
        // Where the latest capture is.
        std::function<QString()> latestCapture;
    };

    // The services must outlive this. `home` is how paths that the user reads begin with "~".
    OnboardingFlow(AppSettings &settings, std::unique_ptr<DesktopScreenshots> desktop, Thumbnails &thumbnails,
                   QString home, Hooks hooks);

    // Where the user is, or was before.
    [[nodiscard]] const OnboardingState &state() const { return m_state; }
    // Each time the window is shown: what is answered since is not asked again.
    void begin();
    void receiveDestination(const ScreenshotDestination &destination);

    // What the user wants: the buttons of the page, and another step that was reached.
    void primary();
    void secondary();
    void skip();
    void show(OnboardingStep step);

Q_SIGNALS:
    void changed();
    // The user has come to the end.
    void finished();

private:
    void applySettings(const AppSettingsState &settings);
    void enterFirstScreenshot();
    void chooseFolder();
    void useFolder(const QString &folder);
    void lookOnDesktop(const QString &folder);
    void moveScreenshots();
    void moved(const Result<DesktopScreenshots::Report> &report);
    void receiveCapture();
    void fail(const Error &error);
    void say(const QString &note);
    void refreshPath();
    // The folder that the screenshot tool saves into, if it can be used.
    [[nodiscard]] std::optional<QString> suggestion() const;
    [[nodiscard]] bool isBusy() const;

    AppSettings &m_settings;
    const std::unique_ptr<DesktopScreenshots> m_desktop;
    Thumbnails &m_thumbnails;
    const QString m_home;
    const Hooks m_hooks;
    OnboardingState m_state;
    std::optional<ScreenshotDestination> m_destination;
    std::unique_ptr<Thumbnails::Request> m_captureRequest;
    // The folder is being taken by an answer in the window.
    bool m_isAccepting = false;
};

} // namespace tembra
