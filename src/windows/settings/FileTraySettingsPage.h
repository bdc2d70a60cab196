#pragma once

#include "windows/settings/SettingsPage.h"

namespace tembra {

// Whether there is a file tray.
class FileTraySettingsPage final : public SettingsPage {
    Q_OBJECT

public:
    explicit FileTraySettingsPage(AppSettings &settings, QWidget *parent = nullptr);
};

} // namespace tembra
