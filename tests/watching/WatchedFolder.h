#pragma once

#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "screenshots/FileWatcherService.h"
#include "screenshots/FolderReader.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "support/FakeFolderEvents.h"
#include "support/Files.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"
#include "support/Pictures.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tembra {

// A real folder under a watcher whose time and events come from the test.
class WatchedFolder : public testing::Test {
protected:
    WatchedFolder() {
        QDir().mkpath(folder);
        shelf.url = folder;
        service->dismissedStamps = [this] { return dismissed; };
        service->onChange = [this](FolderShelf &, bool changed, int newCount) {
            ++reports;
            changes += changed ? 1 : 0;
            announcedCount += newCount;
        };
        service->onNewFiles = [this](const std::vector<Shot> &shots) { announced += names(shots); };
    }

    [[nodiscard]] Instant now() const { return m_clock(); }
    [[nodiscard]] QString path(const QString &name) const { return folder + u'/' + name; }
    // Writes a file that was modified now, as the virtual time has it.
    QString write(const QString &name, const QByteArray &content = pictureBytes("png")) const {
        QString file = writeFile(path(name), content);
        setModified(file, now());
        return file;
    }

    // Starts and finishes the first scan.
    void start() {
        service->start(shelf);
        pass(std::chrono::milliseconds(80));
    }
    // Lets the scan that waits run and arrive.
    void finishScan() {
        queue.runAll();
        scheduler.settle();
    }
    // Lets time pass, each scan finishing as soon as it begins; gives how many there were.
    int pass(Scheduler::Duration duration) {
        const Uptime end = scheduler.now() + duration;
        int scans = 0;
        for (;;) {
            scans += queue.count();
            finishScan();
            const auto next = scheduler.nextDelay();
            if (next < Scheduler::Duration::zero() || scheduler.now() + next > end)
                break;
            scheduler.advance(next);
        }
        scheduler.advance(end - scheduler.now());
        return scans;
    }
    [[nodiscard]] static QStringList names(const std::vector<Shot> &shots) {
        QStringList names;
        for (const Shot &shot : shots)
            names << QFileInfo(shot.location).fileName();
        return names;
    }
    [[nodiscard]] QStringList shown() const { return names(shelf.shots); }

    const QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("Screenshots"));
    ManualScheduler scheduler;
    ManualQueue queue;
    FakeFolderEvents events;
    FolderShelf shelf;
    bool includesSubfolders = false;
    QString customPrefix;
    QSet<QString> dismissed;

    int reports = 0;
    int changes = 0;
    int announcedCount = 0;
    QStringList announced;

private:
    const WallClock m_clock = scheduler.wallClock(systemNow());
    const LinuxFileFactsReader m_facts{};
    const LinuxFolderFiles m_files{m_facts};
    const LinuxCaptureMarkers m_markers{};
    const ScreenshotCaptureDetector m_detector{m_markers, m_files};

protected:
    std::unique_ptr<FileWatcherService> service = std::make_unique<FileWatcherService>(
        FileWatcherService::Services{events, scheduler, scheduler.uptimeClock(), m_clock, queue, m_detector,
                                     [this](const QString &) { return includesSubfolders; }},
        std::make_shared<FolderReader>(m_files, m_detector, [this] { return customPrefix; }));
};

} // namespace tembra
