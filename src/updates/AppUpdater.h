#pragma once

#include "base/Clocks.h"
#include "base/Generation.h"
#include "base/Result.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "updates/Appcast.h"
#include "updates/SettingsUpdateState.h"
#include "updates/UpdateConfiguration.h"
#include "updates/UpdateSignature.h"
#include "updates/UpdateStatus.h"

#include <QObject>

#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QNetworkAccessManager;
QT_END_NAMESPACE

namespace tembra {

class UpdateDownloader;
class UpdateFeed;

// Looks for new versions of the program in a signed feed, fetches them, and hands them, verified, to the
// desktop; it runs nothing itself. Whether it looks by itself is told in UpdateSchedule.h. Main thread; owned
// by AppDelegate.
class AppUpdater final : public QObject {
    Q_OBJECT

public:
    struct Services {
        UserDefaults &defaults;
        Scheduler &scheduler;
        WallClock now;
        Workspace &workspace;
        // Reads updates to verify them.
        SerialQueue &queue;
    };

    // Settles what existing installs do by themselves, before anything else writes the preferences.
    AppUpdater(const Services &services, UpdateConfiguration configuration, QObject *parent = nullptr);
    ~AppUpdater() override;

    // Once. A failure is logged, and nothing can be checked then.
    void start();

    // These do nothing while a session, which is a check, a download or a verification, is in progress.
    void checkForUpdates();
    // Fetches the version that is available.
    void download();
    // Verifies the version that is ready once more and opens it.
    void install();

    // Checks are possible and none is in progress.
    [[nodiscard]] bool canCheck() const { return m_publisher && !m_isInSession; }
    [[nodiscard]] bool automaticChecks() const { return m_automaticChecks; }
    void setAutomaticChecks(bool on);
    [[nodiscard]] const SettingsUpdateState &state() const { return m_state; }
    [[nodiscard]] UpdateStatus status() const;

Q_SIGNALS:
    // The state, whether a check is possible, or whether checks are automatic.
    void changed();
    // Something that the user asked for has ended, or a check has found a version; the state says how. An
    // update that was opened speaks for itself.
    void ended();

private:
    // A version on the disk.
    struct Ready {
        AppcastItem item;
        QString path;
    };

    [[nodiscard]] Result<UpdateSignature> publisher() const;
    void scheduleCheck();
    void check(bool byUser);
    void receive(Result<Appcast> feed, bool byUser);
    void takeOffer(const Appcast &feed);
    void retryLater();
    void receiveFile(const Result<QString> &path);
    void openReady(const Result<void> &verified);
    void become(SettingsUpdateState::Kind kind);
    void fail(const QString &sentence);
    // Shows the state, with the version it is about, and tells of it.
    void show(SettingsUpdateState state);
    [[nodiscard]] QString folder() const;
    QNetworkAccessManager &network();

    Services m_services;
    const UpdateConfiguration m_configuration;
    SettingsUpdateState m_state;
    bool m_automaticChecks = false;
    bool m_isInSession = false;
    // While there is one checks are possible.
    std::optional<UpdateSignature> m_publisher;
    std::optional<AppcastItem> m_offer;
    std::optional<Ready> m_ready;
    // Made when it is first needed.
    std::unique_ptr<QNetworkAccessManager> m_network;
    std::unique_ptr<UpdateFeed> m_feed;
    std::unique_ptr<UpdateDownloader> m_downloader;
    std::unique_ptr<Workspace::Observation> m_observation;
    WorkItem m_nextCheck;
    Generation m_generation;
};

} // namespace tembra
