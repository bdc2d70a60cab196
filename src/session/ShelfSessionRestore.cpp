// Screenshots come back from the Trash.

#include "base/RestoredOrder.h"
#include "session/ScreenshotRemovalError.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace tembra {

struct ShelfSession::RestoreBatch {
    std::vector<RemovedScreenshot> removed;
    ScreenshotRemovalContext context;
    // What the undone step is called.
    QString actionName;
    Phase phase;
    std::size_t next = 0;
    std::vector<RemovedScreenshot> restored;
    // Of those, the paths that auto-clean does not know of yet.
    QStringList unprotected;
    QStringList failures;
    // What failed may be tried again when the folder is back.
    bool failedForFolder = false;
};

namespace {

// Few enough to be told of without a pause, and few to lose by a program that ends in between.
constexpr qsizetype protectedTogether = 50;

} // namespace

void ShelfSession::restoreScreenshots(const std::vector<RemovedScreenshot> &removed,
                                      const ScreenshotRemovalContext &context, const QString &actionName,
                                      Phase phase) {
    const auto batch = std::make_shared<RestoreBatch>(RestoreBatch{removed, context, actionName, phase});
    const auto step = [this, batch] {
        const RemovedScreenshot &screenshot = batch->removed[batch->next++];
        const auto restored = restoreScreenshot(screenshot, batch->context);
        if (restored) {
            batch->restored.push_back(screenshot);
            batch->restored.back().shot.location = screenshot.originalPath;
            batch->unprotected += screenshot.originalPath;
            if (batch->unprotected.size() == protectedTogether)
                protect(*batch);
        } else {
            batch->failures += QFileInfo(screenshot.originalPath).fileName() + QStringLiteral(": ") +
                               restored.error().message;
            batch->failedForFolder |= ScreenshotRemovalError::isOfFolder(restored.error());
        }
        return batch->next < batch->removed.size();
    };
    runBatch(step, [this, batch] { finishRestore(*batch); });
}

void ShelfSession::protect(RestoreBatch &batch) {
    m_settings.protectRestoredScreenshots(batch.unprotected, m_services.now());
    batch.unprotected.clear();
}

Result<void> ShelfSession::restoreScreenshot(const RemovedScreenshot &removed,
                                             const ScreenshotRemovalContext &context) {
    if (folderShelf().url != context.folder)
        return failure(ScreenshotRemovalError::folderHasChanged());
    const QString folder = context.folder.value_or(QString());
    const bool wasInFolder = !folder.isEmpty() && removed.originalPath.startsWith(folder + u'/');
    const Trash::Guard guard{
        .root = wasInFolder ? folder : QString(), .isExpected = [&removed](const FileFacts &facts) {
            return ScreenshotFileIdentity::of(removed.originalPath, facts) == removed.identity;
        }};
    const auto restored = m_services.trash.restore(removed.trashPath, removed.originalPath, guard);
    if (!restored)
        return failure(ScreenshotRemovalError::ofRestore(restored.error()));
    return {};
}

void ShelfSession::finishRestore(RestoreBatch &batch) {
    if (batch.restored.empty() && batch.failedForFolder)
        screenshotUndoManager.registerAction(Phase::redoing, batch.actionName, [this, batch](Phase next) {
            restoreScreenshots(batch.removed, batch.context, batch.actionName, next);
        });
    if (!batch.restored.empty()) {
        protect(batch);
        forgetDismissal(batch.restored);
        // The folder may have been changed since the first of them came back.
        if (folderShelf().url == batch.context.folder)
            putBackOnShelf(batch.restored, batch.context);
        std::vector<Shot> shots;
        std::ranges::transform(batch.restored, std::back_inserter(shots), &RemovedScreenshot::shot);
        restartAutoClean();
        screenshotUndoManager.registerAction(
            batch.phase, QCoreApplication::translate("ScreenshotRemoval", "Move to Trash"),
            [this, shots](Phase next) { moveToTrash(shots, next); });
        playScreenshotRestoreSound();
        changed();
    }
    reportFailures(QCoreApplication::translate("ScreenshotRemoval", "Couldn’t Restore Screenshots"),
                   batch.failures);
}

void ShelfSession::forgetDismissal(const std::vector<RemovedScreenshot> &restored) {
    const auto before = dismissed.size();
    for (const RemovedScreenshot &screenshot : restored)
        dismissed.remove(screenshot.shot.stamp);
    if (dismissed.size() != before)
        m_services.defaults.setStringArray(QStringLiteral("dismissed"),
                                           {dismissed.cbegin(), dismissed.cend()});
}

void ShelfSession::putBackOnShelf(const std::vector<RemovedScreenshot> &restored,
                                  const ScreenshotRemovalContext &context) {
    std::vector<Shot> shots;
    std::vector<ClipboardEntry> trayEntries;
    for (const RemovedScreenshot &screenshot : restored) {
        shots.push_back(screenshot.shot);
        std::ranges::copy(screenshot.trayEntries, std::back_inserter(trayEntries));
        if (context.selection.contains(screenshot.identity))
            selected.insert(screenshot.identity);
    }
    FolderShelf &shelf = folderShelf();
    shelf.shots = inRestoredOrder(std::move(shelf.shots), std::move(shots), context.order,
                                  std::mem_fn(&Shot::identity));
    clipboard.restoreReferences(trayEntries, context.trayOrder, context.traySelection,
                                context.trayGeneration);
}

} // namespace tembra
