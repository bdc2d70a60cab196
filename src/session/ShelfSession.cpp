#include "session/ShelfSession.h"

#include "base/Background.h"
#include "screenshots/CaptureMedia.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>

namespace tembra {

namespace {

const QString dismissedKey = QStringLiteral("dismissed");

ScreenshotAutoCopy::Services autoCopyServices(const ShelfSessionServices &services) {
    return {.pasteboard = services.pasteboard,
            .queue = services.copyQueue,
            .scheduler = services.scheduler,
            .prepare = [&pictures = services.pictures](
                           const QString &path) { return ScreenshotImageData::load(path, pictures); },
            .isCapture = services.isCapture};
}

ClipboardStoreServices clipboardServices(const ShelfSessionServices &services) {
    return {.scheduler = services.scheduler,
            .uptime = services.uptime,
            .files = services.files,
            .references = services.references,
            .volumes = services.volumes,
            .folderEvents = services.folderEvents,
            .workspace = services.workspace,
            .promises = services.promises,
            .queue = services.clipboardQueue,
            .folders = services.folders};
}

} // namespace

ShelfSession::ShelfSession(AppSettings &settings, ShelfSessionServices services,
                           std::unique_ptr<FileWatcherService> fileWatcher)
    : clipboard(clipboardServices(services)),
      screenshotAutoCopy(autoCopyServices(services)),
      m_settings(settings),
      m_services(std::move(services)),
      m_fileWatcher(std::move(fileWatcher)),
      m_batches(m_services.scheduler, m_services.uptime) {
    const QStringList stamps = m_services.defaults.stringArray(dismissedKey).value_or(QStringList());
    dismissed = QSet<QString>(stamps.cbegin(), stamps.cend());
    shelves.push_back(std::make_unique<FolderShelf>());
    folderShelf().url = settings.state().screenshotsFolder;
    moveScreenshotToTrash = [this](const QString &path, const Trash::Guard &guard) {
        return m_services.trash.moveToTrash(path, guard);
    };
    playScreenshotTrashSound = [this] { m_services.sounds.play(Sounds::Event::movedToTrash); };
    playScreenshotRestoreSound = [this] { m_services.sounds.play(Sounds::Event::restored); };
    wire();
}

ShelfSession::~ShelfSession() {
    m_autoCleanCancellation->cancel();
    m_previewCancellation->cancel();
}

void ShelfSession::wire() {
    m_fileWatcher->dismissedStamps = [this] { return dismissed; };
    m_fileWatcher->onChange = [this](FolderShelf &shelf, bool flag, int count) {
        folderChanged(shelf, flag, count);
    };
    m_fileWatcher->onNewFiles = [this](const std::vector<Shot> &shots) {
        // Told newest first, copied in the order they were made.
        screenshotAutoCopy.receive({shots.crbegin(), shots.crend()}, continuesScreenshotCopySeries());
        if (onNewFiles)
            onNewFiles(shots);
    };
    clipboard.canReceive = [this] { return m_settings.state().fileTrayEnabled; };
    // Files on their way to the Trash and back are not gone.
    clipboard.shouldDeferReconciliation = [this] { return m_batches.isRunning(); };
    clipboard.onTakenOut = [this](const ClipboardRemoval &removal) {
        registerTakenOut(removal, Phase::doing);
    };
}

void ShelfSession::folderChanged(FolderShelf &shelf, bool flag, int count) {
    if (&shelf != shelves.front().get())
        return;
    if (shelf.errorText) {
        selected.clear();
    } else if (!selected.isEmpty()) {
        QSet<ScreenshotFileIdentity> present;
        for (const Shot &shot : shelf.shots)
            present.insert(shot.identity);
        selected.intersect(present);
    }
    if (flag)
        followPins(shelf);
    if (onFolderChange)
        onFolderChange(shelf, flag, count);
}

// A pinned screenshot that was renamed stays pinned under its new name.
void ShelfSession::followPins(const FolderShelf &shelf) {
    QHash<FileResource, QString> lost;
    for (const PinnedScreenshot &pin : m_settings.pinnedScreenshots()) {
        if (!pin.resolved || !pin.resolved->reference)
            continue;
        const auto facts = m_services.files.facts(pin.resolved->path);
        if (!facts || facts->resource != pin.resolved->reference)
            lost.insert(*pin.resolved->reference, pin.resolved->path);
    }
    if (lost.isEmpty())
        return;
    for (const Shot &shot : shelf.shots) {
        const auto file = shot.identity.resource();
        if (!file || !lost.contains(*file))
            continue;
        if (const auto bound = m_settings.rebindScreenshotPin(lost.take(*file), shot.location); !bound)
            qWarning("The pin of %s is lost: %s", qUtf8Printable(shot.location),
                     qUtf8Printable(bound.error().message));
    }
}

void ShelfSession::changed() {
    if (onChange)
        onChange();
}

void ShelfSession::refreshWatcher() {
    // A folder that is lost is waited for where it was.
    const auto &granted = m_settings.state().screenshotsFolder;
    const std::optional<QString> folder = granted ? granted : m_settings.lostScreenshotsFolder();
    clipboard.startMonitoring();
    if (folder != folderShelf().url) {
        m_fileWatcher->stop();
        folderShelf() = FolderShelf();
        folderShelf().url = folder;
        selected.clear();
    }
    if (folder)
        m_fileWatcher->start(folderShelf());
    applySettings();
}

void ShelfSession::stopWatcher() {
    m_fileWatcher->stop();
    clipboard.stopMonitoring();
}

void ShelfSession::rereadFolder() {
    if (!m_fileWatcher->isRunning())
        return;
    folderShelf().hasCompletedInitialScan = false;
    m_fileWatcher->start(folderShelf());
}

void ShelfSession::applySettings() {
    const AppSettingsState &state = m_settings.state();
    screenshotAutoCopy.configure(state.automaticallyCopyScreenshots && isRunning, state.screenshotsFolder,
                                 m_services.now());
    if (state.screenshotAutoClean != m_scheduledAutoCleanPeriod ||
        state.screenshotsFolder != m_scheduledAutoCleanFolder)
        restartAutoClean();
}

void ShelfSession::copyScreenshots(const std::vector<Shot> &shots) {
    if (shots.empty())
        return;
    std::vector<Pasteboard::Item> items;
    std::size_t lastImage = 0;
    for (const Shot &shot : shots) {
        if (CaptureMedia::isImageExtension(CaptureMedia::extension(shot.location)))
            lastImage = items.size();
        items.push_back({.path = shot.location});
    }
    performInBackground(
        m_services.copyQueue, m_services.scheduler, m_life.ticket(),
        [&pictures = m_services.pictures, path = items[lastImage].path] {
            return ScreenshotImageData::load(path, pictures);
        },
        [this, items, lastImage](const std::optional<ScreenshotImageData> &image) mutable {
            if (image) {
                items[lastImage].type = image->type;
                items[lastImage].data = image->data;
            }
            const auto written = m_services.pasteboard.writeObjects(items);
            if (!written && onError)
                onError(QCoreApplication::translate("ShelfSession", "Couldn’t Copy Screenshots"),
                        written.error().message);
        });
}

void ShelfSession::runBatch(std::function<bool()> step, std::function<void()> done) {
    m_fileWatcher->pause();
    m_batches.start(std::move(step), [this, done = std::move(done)] {
        done();
        m_fileWatcher->resume();
        clipboard.scheduleReconciliation();
    });
}

void ShelfSession::registerTakenOut(const ClipboardRemoval &removal, Phase phase) {
    const QString name = removal.isClearing
                             ? QCoreApplication::translate("ShelfSession", "Clear File Tray")
                             : QCoreApplication::translate("ShelfSession", "Remove from File Tray");
    screenshotUndoManager.registerAction(phase, name, [this, removal, name](Phase reverse) {
        clipboard.putBack(removal);
        screenshotUndoManager.registerAction(reverse, name, [this, removal](Phase again) {
            registerTakenOut(clipboard.takeOut(removal), again);
        });
    });
}

bool ShelfSession::undo() {
    if (m_batches.isRunning()) {
        m_batches.start([] { return false; }, [this] { screenshotUndoManager.undo(); });
        return true;
    }
    return screenshotUndoManager.undo();
}

bool ShelfSession::redo() {
    if (m_batches.isRunning()) {
        m_batches.start([] { return false; }, [this] { screenshotUndoManager.redo(); });
        return true;
    }
    return screenshotUndoManager.redo();
}

} // namespace tembra
