#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

QT_BEGIN_NAMESPACE
class QMessageBox;
QT_END_NAMESPACE

namespace tembra {

class AppUpdater;
class Workspace;

// Tells of what a check for updates found, and offers what can be done about it: to fetch the update, then to
// open it. One alert at a time. Main thread; owned by AppDelegate.
class UpdateAlerts final : public QObject {
    Q_OBJECT

public:
    // Both must outlive this.
    UpdateAlerts(AppUpdater &updater, Workspace &workspace);
    ~UpdateAlerts() override;

    // Whether the user sees the state of updates anyway; then no alert tells of it.
    std::function<bool()> isShownElsewhere;

private:
    void show();
    void offerStep(QMessageBox &alert);

    AppUpdater &m_updater;
    Workspace &m_workspace;
    QPointer<QMessageBox> m_alert;
};

} // namespace tembra
