#pragma once

#include "screenshots/FileWatcherService.h"
#include "screenshots/FolderReader.h"
#include "session/ShelfSession.h"
#include "settings/SettingsFixture.h"
#include "support/FakeFolderEvents.h"
#include "support/Pictures.h"
#include "support/SessionServices.h"

namespace tembra {

// A session over real files, which were made now, and ten days later.
class AutoCleanFixture : public SettingsFixture {
protected:
    using Period = ScreenshotAutoCleanPeriod;

    static constexpr auto madeAgo = std::chrono::days(10);

    // Starts anew over the folder, with pins whose disk is absent; no check is scheduled yet.
    void openFolder(const QString &folder, Period period,
                    AutoCleanReview review = AutoCleanReview::reviewed) {
        session.reset();
        m_defaults.values.clear();
        m_defaults.setDataArray(settingsKey::pinnedScreenshotBookmarks, m_absent);
        start();
        ASSERT_TRUE(m_settings->grantScreenshotsFolder(folder, false, false));
        m_settings->setScreenshotAutoClean(period);
        setReview(review);
        ShelfSessionServices services = parts.services(m_defaults);
        services.uptime = [this] { return parts.scheduler.now() + spent; };
        session = std::make_unique<ShelfSession>(*m_settings, services, makeWatcher());
        session->isRunning = true;
    }
    // What the shelf's owner does about changed settings.
    void followSettings() {
        QObject::connect(m_settings.get(), &AppSettings::updates, m_settings.get(),
                         [this] { session->applySettings(); });
    }

    void setReview(AutoCleanReview review) {
        m_defaults.setInteger(settingsKey::autoCleanSafetyReview, static_cast<int>(review));
    }
    // Lets what is scheduled for the next moment run, then what it sent to the queue.
    void finishCheck() {
        parts.scheduler.advance(std::chrono::milliseconds(10));
        finishScan();
    }
    void finishScan() {
        parts.autoCleanQueue.runAll();
        parts.scheduler.settle();
    }
    [[nodiscard]] QStringList trashed() const {
        return QDir(parts.trashFolder + QStringLiteral("/files")).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<FileWatcherService> makeWatcher() {
        return std::make_unique<FileWatcherService>(
            FileWatcherService::Services{events, parts.scheduler, parts.scheduler.uptimeClock(), parts.now,
                                         queue, parts.detector,
                                         [this](const QString &) { return parts.includesSubfolders; }},
            std::make_shared<FolderReader>(parts.folderFiles, parts.detector, [] { return QString(); }));
    }

    SessionServices parts{.now = parts.scheduler.wallClock(systemNow() + madeAgo)};
    // Time that the main thread was at work, beside that which the test lets pass.
    Uptime spent{0};
    ManualQueue queue;
    FakeFolderEvents events;
    std::unique_ptr<ShelfSession> session;
};

} // namespace tembra
