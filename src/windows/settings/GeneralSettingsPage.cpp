#include "windows/settings/GeneralSettingsPage.h"

#include "controls/TembraButton.h"
#include "controls/TembraSettingsRow.h"
#include "controls/TembraToggle.h"

namespace tembra {

GeneralSettingsPage::GeneralSettingsPage(AppSettings &settings, LoginItemService loginItem, QWidget *parent)
    : SettingsPage(tr("General"), settings, parent), m_loginItem(std::move(loginItem)) {
    addActivation();
    addLoginItem();
    refresh();
}

void GeneralSettingsPage::addActivation() {
    addSection(tr("Shelf"));
    addChoice(
        tr("Open the shelf"), {tr("On click"), tr("On hover")},
        [](const AppSettingsState &state) { return static_cast<int>(state.activationMode); },
        [this](int index) {
            settings().setActivationMode(allActivationModes.at(static_cast<size_t>(index)));
        });
    addToggle(tr("Switch tabs on hover"), &AppSettingsState::hoverOnTabToOpen,
              &AppSettings::setHoverOnTabToOpen);
    addChoice(
        tr("Show the shelf on"), {tr("Main display"), tr("All displays")},
        [](const AppSettingsState &state) { return static_cast<int>(state.displayPreference); },
        [this](int index) {
            settings().setDisplayPreference(allDisplayPreferences.at(static_cast<size_t>(index)));
        });
}

void GeneralSettingsPage::addLoginItem() {
    addSection(tr("Startup"));
    m_login = new TembraToggle;
    m_loginRow = addRow(tr("Launch at login"), m_login);
    connect(m_login, &QAbstractButton::clicked, this, &GeneralSettingsPage::setLaunchedAtLogin);
    auto *open =
        new TembraButton(TembraButton::Kind::plain, TembraButton::Size::compact, tr("Open Settings"));
    m_approvalRow = addRow(tr("Allow Tembra in System Settings to launch at login"), open);
    connect(open, &QAbstractButton::clicked, this, [this] {
        if (const auto opened = m_loginItem.openApprovalSettings(); !opened)
            Q_EMIT failed(opened.error().message, opened.error().recoverySuggestion);
    });
    onRefresh([this] { showLoginItem(); });
}

void GeneralSettingsPage::setLaunchedAtLogin(bool isLaunched) {
    const auto changed = isLaunched ? m_loginItem.registerItem() : m_loginItem.unregisterItem();
    refresh();
    if (!changed)
        Q_EMIT failed(tr("Couldn’t change launch at login"), changed.error().message);
}

void GeneralSettingsPage::showLoginItem() {
    using Status = LoginItemService::Status;
    const Status status = m_loginItem.status();
    m_login->setChecked(status == Status::enabled);
    m_loginRow->setEnabled(status != Status::notFound);
    setRowShown(m_approvalRow, status == Status::requiresApproval);
    switch (status) {
    case Status::requiresApproval:
        m_loginRow->setDetail(tr("Disabled in macOS. Allow Tembra in System Settings to launch at login."));
        break;
    case Status::notFound:
        m_loginRow->setDetail(tr("Launch at login is unavailable for this copy of Tembra"));
        break;
    case Status::notRegistered:
    case Status::enabled:
        m_loginRow->setDetail({});
    }
}

} // namespace tembra
