#pragma once

#include "windows/settings/AutoCleanChange.h"
#include "windows/settings/SettingsPage.h"

#include <optional>

namespace tembra {

// Where screenshots are, what happens with new ones, how they are shown, and when old ones go.
class ScreenshotsSettingsPage final : public SettingsPage {
    Q_OBJECT

public:
    struct Actions {
        // Asks the user for a folder, starting at the one suggested; nothing when the user changed their
        // mind.
        std::function<std::optional<QString>(const QString &suggested)> askForFolder;
        // Makes it the one that is shown and saved into, with auto-clean set to Never.
        std::function<Result<void>(const QString &folder)> changeFolder;
        std::function<void()> openFolder;
        // Whether the screenshot tool has a floating preview that could be hidden.
        std::function<bool()> hasPreview;
        AutoCleanChange::Actions autoClean;
    };

    ScreenshotsSettingsPage(AppSettings &settings, Actions actions, QWidget *parent = nullptr);

Q_SIGNALS:
    void failed(const QString &title, const QString &message);

private:
    void addLocation();
    void addReactions();
    void addCommand();
    void addGrid();
    void addAutoClean();
    void chooseFolder();
    void setPreviewHidden(bool isHidden);
    [[nodiscard]] QString folderText() const;

    const Actions m_actions;
    AutoCleanChange m_autoClean;
};

} // namespace tembra
