#pragma once

#include "platform/LoginItemService.h"
#include "windows/settings/SettingsPage.h"

namespace tembra {

// How the shelf opens, where, and whether the program starts with the session.
class GeneralSettingsPage final : public SettingsPage {
    Q_OBJECT

public:
    GeneralSettingsPage(AppSettings &settings, LoginItemService loginItem, QWidget *parent = nullptr);

Q_SIGNALS:
    void failed(const QString &title, const QString &message);

private:
    void addActivation();
    void addLoginItem();
    void setLaunchedAtLogin(bool isLaunched);
    void showLoginItem();

    const LoginItemService m_loginItem;
    TembraToggle *m_login = nullptr;
    TembraSettingsRow *m_loginRow = nullptr;
    TembraSettingsRow *m_approvalRow = nullptr;
};

} // namespace tembra
