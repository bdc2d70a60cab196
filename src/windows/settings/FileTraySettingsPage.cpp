#include "windows/settings/FileTraySettingsPage.h"

namespace tembra {

FileTraySettingsPage::FileTraySettingsPage(AppSettings &settings, QWidget *parent)
    : SettingsPage(tr("File Tray"), settings, parent) {
    addSection();
    addToggle(tr("Show the file tray"), &AppSettingsState::fileTrayEnabled, &AppSettings::setFileTrayEnabled,
              tr("Drop or paste files on the shelf now, and drag them out later."));
    refresh();
}

} // namespace tembra
