#pragma once

#include "windows/settings/SettingsPage.h"

namespace tembra {

class AppUpdater;
class TembraButton;

// Which version this is, whether there is a newer one, and what it is made with.
class AboutSettingsPage final : public SettingsPage {
    Q_OBJECT

public:
    // The updater outlives the page.
    AboutSettingsPage(AppSettings &settings, AppUpdater &updater, QWidget *parent = nullptr);

Q_SIGNALS:
    void quitRequested();

private:
    void addProgram();
    void addUpdates();
    void addLicences();
    void showUpdates();
    void actOnUpdate();

    AppUpdater &m_updater;
    TembraToggle *m_automatic = nullptr;
    TembraSettingsRow *m_automaticRow = nullptr;
    TembraSettingsRow *m_updateRow = nullptr;
    TembraButton *m_update = nullptr;
};

} // namespace tembra
