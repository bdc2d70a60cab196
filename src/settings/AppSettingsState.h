#pragma once

#include "settings/ActivationMode.h"
#include "settings/ActivationShortcut.h"
#include "settings/DisplayPreference.h"
#include "settings/ScreenshotAutoCleanPeriod.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tembra {

// Every preference of the user and the few facts about the program's own progress, as one value. AppSettings
// owns the current one and publishes each new one.
struct AppSettingsState {
    // The folder that the user granted, as found through its bookmark.
    std::optional<QString> screenshotsFolder;
    bool hasCompletedOnboarding = false;
    // A capture has arrived since onboarding began.
    bool hasCaughtFirstScreenshot = false;
    // A folder is granted and its access is open. Derived, not stored.
    bool hasFolderAccess = false;
    // The screenshot tool's floating thumbnail is switched off. Derived from the tool's preferences.
    bool screenshotPreviewDisabled = false;
    ActivationMode activationMode = ActivationMode::hover;
    bool shortcutEnabled = false;
    ActivationShortcut activationShortcut = ActivationShortcut::standard();
    // Hovering a tab of the open shelf switches to it.
    bool hoverOnTabToOpen = false;
    bool fileTrayEnabled = true;
    bool imageToTextEnabled = true;
    DisplayPreference displayPreference = DisplayPreference::main;
    bool screenshotNotifications = true;
    bool automaticallyCopyScreenshots = true;
    bool automaticallyOpenEditor = false;
    bool showFileNames = true;
    bool groupScreenshotsByDate = false;
    // As the text recognition names them; none means those of the desktop.
    QStringList textRecognitionLanguages;
    // Run for each new capture, without a shell: a program and its arguments. None by default.
    QStringList newCaptureCommand;
    ScreenshotAutoCleanPeriod screenshotAutoClean = ScreenshotAutoCleanPeriod::never;

    bool operator==(const AppSettingsState &) const = default;
};

} // namespace tembra
