#include "settings/SettingsLoading.h"

#include "platform/UserDefaults.h"
#include "settings/SettingsKeys.h"

namespace tembra {

AppSettingsState loadSettings(const UserDefaults &defaults) {
    AppSettingsState state;
    const auto read = [&defaults](const QString &key, bool &field) {
        field = defaults.boolean(key).value_or(field);
    };
    read(settingsKey::hasCompletedOnboarding, state.hasCompletedOnboarding);
    read(settingsKey::hasCaughtFirstScreenshot, state.hasCaughtFirstScreenshot);
    state.activationMode =
        activationModeFromRaw(defaults.string(settingsKey::activationMode).value_or(QString()));
    read(settingsKey::shortcutEnabled, state.shortcutEnabled);
    state.activationShortcut =
        ActivationShortcut::fromJson(defaults.data(settingsKey::activationShortcut).value_or(QByteArray()))
            .value_or(ActivationShortcut::standard());
    read(settingsKey::hoverOnTabToOpen, state.hoverOnTabToOpen);
    read(settingsKey::fileTrayEnabled, state.fileTrayEnabled);
    read(settingsKey::imageToTextEnabled, state.imageToTextEnabled);
    state.displayPreference =
        displayPreferenceFromRaw(defaults.string(settingsKey::displayPreference).value_or(QString()));
    read(settingsKey::screenshotNotifications, state.screenshotNotifications);
    read(settingsKey::automaticallyCopyScreenshots, state.automaticallyCopyScreenshots);
    read(settingsKey::automaticallyOpenEditor, state.automaticallyOpenEditor);
    read(settingsKey::showFileNames, state.showFileNames);
    read(settingsKey::groupScreenshotsByDate, state.groupScreenshotsByDate);
    state.textRecognitionLanguages =
        defaults.stringArray(settingsKey::textRecognitionLanguages).value_or(QStringList());
    state.newCaptureCommand =
        defaults.stringArray(settingsKey::newCaptureCommand).value_or(QStringList());
    state.screenshotAutoClean =
        autoCleanPeriodFromDays(defaults.integer(settingsKey::screenshotAutoCleanDays).value_or(0));
    return state;
}

} // namespace tembra
