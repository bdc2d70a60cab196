#include "app/UpdateAlerts.h"

#include "platform/Workspace.h"
#include "updates/AppUpdater.h"

#include <QMessageBox>
#include <QPushButton>

namespace tembra {

UpdateAlerts::UpdateAlerts(AppUpdater &updater, Workspace &workspace)
    : m_updater(updater), m_workspace(workspace) {
    connect(&m_updater, &AppUpdater::ended, this, &UpdateAlerts::show);
}

UpdateAlerts::~UpdateAlerts() {
    delete m_alert;
}

void UpdateAlerts::show() {
    // Its button may be what led here.
    if (m_alert) {
        m_alert->hide();
        m_alert->deleteLater();
    }
    if (isShownElsewhere && isShownElsewhere())
        return;
    const SettingsUpdateState &state = m_updater.state();
    const bool isFailure = state.kind == SettingsUpdateState::Kind::failed;
    const QString text = updateText(state);
    const QString failureTitle =
        state.version.isEmpty() ? tr("Couldn’t check for updates") : tr("The update failed");
    m_alert = new QMessageBox(isFailure ? QMessageBox::Warning : QMessageBox::Information,
                              QStringLiteral("Tembra"), isFailure ? failureTitle : text, QMessageBox::Close);
    m_alert->setAttribute(Qt::WA_DeleteOnClose);
    m_alert->setModal(false);
    if (isFailure)
        m_alert->setInformativeText(text);
    offerStep(*m_alert);
    m_alert->show();
    m_alert->raise();
    m_alert->activateWindow();
}

void UpdateAlerts::offerStep(QMessageBox &alert) {
    const SettingsUpdateState &state = m_updater.state();
    using Kind = SettingsUpdateState::Kind;
    if (state.kind == Kind::available && !state.releaseNotes.isEmpty()) {
        QPushButton *notes = alert.addButton(tr("What’s New"), QMessageBox::HelpRole);
        // To read them is no answer.
        notes->disconnect();
        connect(notes, &QPushButton::clicked, this,
                [this, link = state.releaseNotes] { (void)m_workspace.openLink(link); });
    }
    if (state.kind == Kind::available) {
        auto *download = alert.addButton(tr("Download"), QMessageBox::AcceptRole);
        alert.setDefaultButton(download);
        connect(download, &QPushButton::clicked, &m_updater, &AppUpdater::download);
    } else if (state.kind == Kind::ready) {
        auto *open = alert.addButton(tr("Open"), QMessageBox::AcceptRole);
        alert.setDefaultButton(open);
        connect(open, &QPushButton::clicked, &m_updater, &AppUpdater::install);
    }
}

} // namespace tembra
