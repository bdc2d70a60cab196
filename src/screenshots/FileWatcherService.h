#pragma once

#include "base/Clocks.h"
#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/FolderEvents.h"
#include "screenshots/FolderScan.h"
#include "screenshots/FolderShelf.h"
#include "screenshots/ScanReason.h"

#include <QSet>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tembra {

class FolderReader;
class ScreenshotCaptureDetector;

// Keeps a FolderShelf in step with its folder: turns any number of events into one scan in the background,
// announces what is new, and comes back when the folder was away. Main thread; owned by ShelfSession.
class FileWatcherService {
public:
    struct Services {
        FolderEvents &events;
        Scheduler &scheduler;
        UptimeClock uptime;
        WallClock now;
        // The queue "Tembra.FolderScan".
        SerialQueue &queue;
        const ScreenshotCaptureDetector &detector;
        // Whether the subfolders of a folder belong to it.
        std::function<bool(const QString &folder)> folderTraversal;
    };

    // The reader is used on the queue alone. The services must outlive this.
    FileWatcherService(Services services, std::shared_ptr<FolderReader> reader);
    ~FileWatcherService();
    FileWatcherService(const FileWatcherService &) = delete;
    FileWatcherService &operator=(const FileWatcherService &) = delete;

    // Stamps of the file versions that stay hidden.
    std::function<QSet<QString>()> dismissedStamps;
    // After each scan, or when the folder cannot be read: whether the shelf's content or error changed, and
    // how many captures are new.
    std::function<void(FolderShelf &shelf, bool changed, int newCount)> onChange;
    // New captures, newest first, after onChange.
    std::function<void(const std::vector<Shot> &)> onNewFiles;

    // Watches the shelf's folder in place of what was watched before. The shelf must live until `stop`.
    void start(FolderShelf &shelf);
    void stop();
    void scanNow();
    // Soon, together with what else is asked for.
    void requestScan();
    // The editor has written a file into the folder.
    void requestScanAfterEditorWrite();
    void receiveTreeEvents(const std::vector<TreeEvent> &events);
    // Between the two nothing is scanned and nothing told, so that the shelf does not see half of what is
    // moved in number. Pauses add up.
    void pause();
    void resume();

    [[nodiscard]] bool isRunning() const { return m_shelf != nullptr; }

private:
    void begin(FolderShelf &shelf);
    void watchFolder();
    void watchTree();
    void receiveDirectoryEvents(std::uint32_t events);
    enum class Concern { nothing, shots, pendingVideo };
    [[nodiscard]] Concern concernOf(const TreeEvent &event) const;
    void watchPendingVideo();
    void scheduleScan(ScanReason reason);
    void runScan();
    void scanFolder();
    void apply(FolderScanResult result);
    void applyFailure(const Error &error);
    void scheduleChecks(const FolderScanResult &result);
    void scheduleRecovery();
    [[nodiscard]] std::vector<Shot> withHeldArrivals(std::vector<Shot> arrivals,
                                                     const std::vector<Shot> &shots);
    [[nodiscard]] std::vector<Shot> newShots(const std::vector<Shot> &arrivals) const;

    const Services m_services;
    const std::shared_ptr<FolderReader> m_reader;
    FolderShelf *m_shelf = nullptr;
    bool m_includesSubfolders = false;
    Generation m_generation;
    std::shared_ptr<std::atomic<bool>> m_cancellation;

    std::unique_ptr<FolderEvents::Handle> m_directorySource;
    std::unique_ptr<FolderEvents::Handle> m_treeStream;
    // Counts the times that event ids began anew; ids are comparable within one epoch only.
    std::uint64_t m_eventEpoch = 0;
    std::uint64_t m_pendingTreeEventID = 0;
    // Up to this one a scan has seen what the events told of.
    std::uint64_t m_reconciledEventID = 0;

    bool m_scanRequested = false;
    bool m_scanning = false;
    int m_pauses = 0;
    // The scan that is under way may have read the folder before a pause.
    bool m_isScanOutdated = false;
    // New captures that a scan met whose result was not told.
    std::vector<Shot> m_heldArrivals;
    std::optional<Uptime> m_earliestScan;
    WorkItem m_scanWork;
    WorkItem m_stabilizationWork;
    WorkItem m_videoWork;
    Scheduler::Duration m_videoDelay;
    WorkItem m_recoveryWork;
    Scheduler::Duration m_recoveryDelay;
};

} // namespace tembra
