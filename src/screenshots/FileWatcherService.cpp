#include "screenshots/FileWatcherService.h"

#include "base/Background.h"
#include "base/MainThread.h"
#include "screenshots/FolderReader.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "screenshots/ScreenshotTimeline.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tembra {

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(log, "tembra.watcher", QtInfoMsg)

constexpr auto coalescing = 80ms;
constexpr auto streamLatency = 100ms;
constexpr auto editorWriteDelay = 350ms;
constexpr auto stabilizationDelay = 250ms;
constexpr Scheduler::Duration firstVideoDelay = 1s;
constexpr Scheduler::Duration longestVideoDelay = 30s;
constexpr Scheduler::Duration firstRecoveryDelay = 1s;
constexpr Scheduler::Duration longestRecoveryDelay = 60s;

// With any of these the events do not tell everything that happened.
constexpr std::uint32_t incompleteMask = TreeEvent::mustScanSubdirectories | TreeEvent::userDropped |
                                         TreeEvent::kernelDropped | TreeEvent::eventIdsWrapped |
                                         TreeEvent::rootChanged | TreeEvent::mount | TreeEvent::unmount;
constexpr std::uint32_t notPlainMask = TreeEvent::itemIsDirectory | TreeEvent::itemIsSymlink |
                                       TreeEvent::itemIsHardlink | TreeEvent::itemRenamed;
constexpr std::uint32_t folderGone = FolderEvents::remove | FolderEvents::rename | FolderEvents::revoke;

bool isPlainFile(const TreeEvent &event) {
    return (event.flags & TreeEvent::itemIsFile) && !(event.flags & notPlainMask);
}

} // namespace

FileWatcherService::FileWatcherService(Services services, std::shared_ptr<FolderReader> reader)
    : m_services(std::move(services)),
      m_reader(std::move(reader)),
      m_videoDelay(firstVideoDelay),
      m_recoveryDelay(firstRecoveryDelay) {}

FileWatcherService::~FileWatcherService() {
    stop();
}

void FileWatcherService::start(FolderShelf &shelf) {
    requireMainThread();
    stop();
    m_recoveryDelay = firstRecoveryDelay;
    begin(shelf);
    scheduleScan(ScanReason::startup);
}

void FileWatcherService::begin(FolderShelf &shelf) {
    if (!shelf.url)
        return;
    m_shelf = &shelf;
    m_generation.advance();
    m_includesSubfolders = m_services.folderTraversal(*shelf.url);
    m_cancellation = std::make_shared<std::atomic<bool>>(false);
    watchFolder();
}

void FileWatcherService::stop() {
    requireMainThread();
    if (m_cancellation)
        *m_cancellation = true;
    m_directorySource.reset();
    m_treeStream.reset();
    for (WorkItem *work : {&m_scanWork, &m_stabilizationWork, &m_videoWork, &m_recoveryWork})
        work->cancel();
    m_scanRequested = false;
    m_scanning = false;
    m_isScanOutdated = false;
    m_heldArrivals.clear();
    m_earliestScan.reset();
    m_pendingTreeEventID = 0;
    m_reconciledEventID = 0;
    m_videoDelay = firstVideoDelay;
    m_shelf = nullptr;
    m_generation.advance();
}

void FileWatcherService::watchFolder() {
    auto source = m_services.events.watchDirectory(
        *m_shelf->url, [this](std::uint32_t events) { receiveDirectoryEvents(events); });
    if (!source)
        return scheduleRecovery();
    m_directorySource = std::move(*source);
    watchTree();
}

// Without a stream the directory source alone has to do.
void FileWatcherService::watchTree() {
    auto stream = m_services.events.watchTree(
        *m_shelf->url, m_includesSubfolders, streamLatency,
        [this](const std::vector<TreeEvent> &events) { receiveTreeEvents(events); });
    if (stream)
        m_treeStream = std::move(*stream);
    else
        qCWarning(log, "No events of %s: %s", qUtf8Printable(*m_shelf->url),
                  qUtf8Printable(stream.error().message));
}

void FileWatcherService::receiveDirectoryEvents(std::uint32_t events) {
    if (events & folderGone) {
        m_directorySource.reset();
        m_treeStream.reset();
        scheduleRecovery();
    }
    scheduleScan(ScanReason::directoryEvent);
}

void FileWatcherService::receiveTreeEvents(const std::vector<TreeEvent> &events) {
    if (!isRunning())
        return;
    bool needsScan = false;
    bool concernsVideo = false;
    for (const TreeEvent &event : events) {
        if (event.flags & TreeEvent::eventIdsWrapped) {
            m_reconciledEventID = 0;
            m_pendingTreeEventID = 0;
            ++m_eventEpoch;
        }
        // What a scan has seen already needs no other; ids begin anew only with the flag above.
        if (event.id <= m_reconciledEventID && !(event.flags & incompleteMask))
            continue;
        m_pendingTreeEventID = std::max(m_pendingTreeEventID, event.id);
        const Concern concern = concernOf(event);
        needsScan = needsScan || concern == Concern::shots;
        concernsVideo = concernsVideo || concern == Concern::pendingVideo;
    }
    if (concernsVideo)
        watchPendingVideo();
    if (needsScan)
        scheduleScan(ScanReason::treeEvent);
}

FileWatcherService::Concern FileWatcherService::concernOf(const TreeEvent &event) const {
    if (event.flags & incompleteMask)
        return Concern::shots;
    const QFileInfo file(event.path);
    if (!m_includesSubfolders && file.path() != *m_shelf->url &&
        file.dir().canonicalPath() != QFileInfo(*m_shelf->url).canonicalFilePath())
        return Concern::nothing;
    return isPlainFile(event) && m_services.detector.isVideoName(file.fileName()) ? Concern::pendingVideo
                                                                                  : Concern::shots;
}

// A recording is looked at when it has been quiet for a moment.
void FileWatcherService::watchPendingVideo() {
    m_videoWork = m_services.scheduler.schedule(firstVideoDelay, [this] { scheduleScan(ScanReason::video); });
    m_videoDelay = firstVideoDelay;
}

void FileWatcherService::scanNow() {
    requireMainThread();
    if (!isRunning())
        return;
    m_scanWork.cancel();
    m_earliestScan.reset();
    m_scanRequested = true;
    if (m_pauses > 0)
        return;
    qCDebug(log, "scan: %s", rawValue(ScanReason::immediate));
    scanFolder();
}

void FileWatcherService::requestScan() {
    requireMainThread();
    scheduleScan(ScanReason::request);
}

void FileWatcherService::requestScanAfterEditorWrite() {
    requireMainThread();
    if (!isRunning())
        return;
    m_earliestScan = m_services.uptime() + editorWriteDelay;
    scheduleScan(ScanReason::editorWrite);
}

void FileWatcherService::scheduleScan(ScanReason reason) {
    if (!isRunning())
        return;
    m_scanRequested = true;
    if (m_scanWork.isPending())
        return;
    qCDebug(log, "scan: %s", rawValue(reason));
    const Scheduler::Duration earliest =
        m_earliestScan ? *m_earliestScan - m_services.uptime() : Scheduler::Duration::zero();
    m_scanWork = m_services.scheduler.schedule(std::max<Scheduler::Duration>(earliest, coalescing),
                                               [this] { runScan(); });
}

void FileWatcherService::pause() {
    requireMainThread();
    ++m_pauses;
    m_isScanOutdated = m_scanning;
}

void FileWatcherService::resume() {
    requireMainThread();
    if (--m_pauses == 0 && m_scanRequested)
        scheduleScan(ScanReason::stateChanged);
}

void FileWatcherService::runScan() {
    if (m_pauses > 0)
        return;
    // The time may have been put off after this scan was scheduled.
    if (m_earliestScan && *m_earliestScan > m_services.uptime())
        return scheduleScan(ScanReason::editorWrite);
    m_earliestScan.reset();
    scanFolder();
}

void FileWatcherService::scanFolder() {
    // One at a time: what was asked for meanwhile is answered by one further scan.
    if (m_scanning)
        return;
    m_scanning = true;
    m_scanRequested = false;
    FolderScanRequest request{.folder = *m_shelf->url,
                              .includesSubfolders = m_includesSubfolders,
                              .dismissed = dismissedStamps ? dismissedStamps() : QSet<QString>(),
                              .now = m_services.now(),
                              .cancellation = m_cancellation};
    performInBackground(
        m_services.queue, m_services.scheduler, m_generation.ticket(),
        [reader = m_reader, request = std::move(request)] { return reader->readFolder(request); },
        [this, epoch = m_eventEpoch, covered = m_pendingTreeEventID](FolderScanResult result) {
            if (epoch == m_eventEpoch && !result.error)
                m_reconciledEventID = covered;
            apply(std::move(result));
        });
}

void FileWatcherService::apply(FolderScanResult result) {
    m_scanning = false;
    // It was found before the moves: told, it would bring back what they took away.
    if (std::exchange(m_isScanOutdated, false) || m_pauses > 0) {
        std::ranges::move(result.arrivals, std::back_inserter(m_heldArrivals));
        return scheduleScan(ScanReason::request);
    }
    if (m_scanRequested)
        scheduleScan(ScanReason::request);
    if (result.error)
        return applyFailure(*result.error);
    if (m_directorySource)
        m_recoveryDelay = firstRecoveryDelay;
    scheduleChecks(result);

    FolderShelf &shelf = *m_shelf;
    const std::vector<Shot> news = newShots(withHeldArrivals(std::move(result.arrivals), result.shots));
    const bool changed =
        !shelf.hasCompletedInitialScan || shelf.errorText.has_value() || shelf.shots != result.shots;
    shelf.hasCompletedInitialScan = true;
    shelf.errorText.reset();
    shelf.shots = std::move(result.shots);
    const auto ticket = m_generation.ticket();
    if (onChange)
        onChange(shelf, changed, static_cast<int>(news.size()));
    if (ticket.isCurrent() && !news.empty() && onNewFiles)
        onNewFiles(news);
}

void FileWatcherService::applyFailure(const Error &error) {
    FolderShelf &shelf = *m_shelf;
    const QString text =
        QCoreApplication::translate("FileWatcherService", "Folder access needs to be restored");
    if (shelf.errorText != text)
        qCWarning(log, "%s cannot be read: %s", qUtf8Printable(*shelf.url), qUtf8Printable(error.message));
    const bool changed = shelf.errorText != text;
    shelf.errorText = text;
    shelf.shots.clear();
    m_directorySource.reset();
    m_treeStream.reset();
    scheduleRecovery();
    if (onChange)
        onChange(shelf, changed, 0);
}

// Those that are still there.
std::vector<Shot> FileWatcherService::withHeldArrivals(std::vector<Shot> arrivals,
                                                       const std::vector<Shot> &shots) {
    for (Shot &held : std::exchange(m_heldArrivals, {})) {
        if (std::ranges::find(shots, held) != shots.end())
            arrivals.push_back(std::move(held));
    }
    std::ranges::sort(arrivals, ScreenshotTimeline::isShownBefore);
    return arrivals;
}

// A file is new when neither it nor another of its name was shown before: renamed and edited ones are not.
std::vector<Shot> FileWatcherService::newShots(const std::vector<Shot> &arrivals) const {
    if (!m_shelf->hasCompletedInitialScan || arrivals.empty())
        return {};
    QSet<ScreenshotFileIdentity> identities;
    QSet<QStringView> locations;
    for (const Shot &arrival : arrivals) {
        identities.insert(arrival.identity);
        locations.insert(arrival.location);
    }
    for (const Shot &shot : m_shelf->shots) {
        identities.remove(shot.identity);
        locations.remove(shot.location);
    }
    std::vector<Shot> news;
    std::ranges::copy_if(arrivals, std::back_inserter(news), [&](const Shot &arrival) {
        return identities.contains(arrival.identity) && locations.contains(arrival.location);
    });
    return news;
}

void FileWatcherService::scheduleChecks(const FolderScanResult &result) {
    if (result.hasUnfinishedImages && !m_stabilizationWork.isPending())
        m_stabilizationWork = m_services.scheduler.schedule(
            stabilizationDelay, [this] { scheduleScan(ScanReason::stabilization); });
    if (!result.hasUnfinishedVideos) {
        m_videoDelay = firstVideoDelay;
        return;
    }
    if (m_videoWork.isPending())
        return;
    m_videoWork = m_services.scheduler.schedule(m_videoDelay, [this] { scheduleScan(ScanReason::video); });
    m_videoDelay = std::min(m_videoDelay * 2, longestVideoDelay);
}

void FileWatcherService::scheduleRecovery() {
    if (m_recoveryWork.isPending())
        return;
    m_recoveryWork = m_services.scheduler.schedule(m_recoveryDelay, [this] {
        FolderShelf &shelf = *m_shelf;
        const auto delay = m_recoveryDelay;
        stop();
        m_recoveryDelay = delay;
        begin(shelf);
        qCDebug(log, "scan: %s", rawValue(ScanReason::recovery));
        scanNow();
    });
    m_recoveryDelay = std::min(m_recoveryDelay * 2, longestRecoveryDelay);
}

} // namespace tembra
