#pragma once

#include "platform/LoginItemService.h"
#include "platform/UserDefaults.h"
#include "windows/settings/DoctorSettingsPage.h"
#include "windows/settings/ImageToTextSettingsPage.h"
#include "windows/settings/ScreenshotsSettingsPage.h"
#include "windows/settings/SettingsPageId.h"

#include <QObject>

#include <memory>

namespace tembra {

class ActivationShortcutControl;
class AppUpdater;
class HotKeys;
class SettingsWindow;

// Shows the window of the settings: made when it is asked for, gone when it is closed, and there is only one.
// Main thread.
class SettingsWindowController final : public QObject {
    Q_OBJECT

public:
    // Everything outlives the controller.
    struct Services {
        AppSettings &settings;
        UserDefaults &defaults;
        LoginItemService loginItem;
        ActivationShortcutControl &shortcut;
        const HotKeys &hotKeys;
        AppUpdater &updater;
        // Its question is asked here where it has none.
        ScreenshotsSettingsPage::Actions screenshots;
        ImageToTextSettingsPage::Actions imageToText;
        DoctorSettingsPage::Examine examine;
        std::function<void(const QString &title, const QString &message)> onError;
        std::function<void()> onQuit;
    };

    explicit SettingsWindowController(Services services);
    ~SettingsWindowController() override;

    // Opens it, or brings it to the front; on the page where one is named.
    void show(std::optional<SettingsPageId> page);
    void close();
    // The page that is shown.
    [[nodiscard]] std::optional<SettingsPageId> currentPage() const;
    // The page is what the user sees in front.
    [[nodiscard]] bool isShowing(SettingsPageId page) const;

private:
    [[nodiscard]] std::unique_ptr<SettingsWindow> makeWindow();
    [[nodiscard]] SettingsPage *makePage(SettingsPageId page);
    [[nodiscard]] ScreenshotsSettingsPage::Actions screenshotActions();

    const Services m_services;
    std::unique_ptr<SettingsWindow> m_window;
    // The one that was shown last.
    SettingsPageId m_page = SettingsPageId::general;
};

} // namespace tembra
