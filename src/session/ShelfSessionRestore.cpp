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
    Phase phase;
    std::size_t next = 0;
    std::vector<RemovedScreenshot> restored;
    QStringList failures;
};

void ShelfSession::restoreScreenshots(const std::vector<RemovedScreenshot> &removed,
                                      const ScreenshotRemovalContext &context, Phase phase) {
    const auto batch = std::make_shared<RestoreBatch>(RestoreBatch{removed, context, phase});
    const auto step = [this, batch] {
        const RemovedScreenshot &screenshot = batch->removed[batch->next++];
        if (const auto restored = restoreScreenshot(screenshot, batch->context))
            batch->restored.push_back(screenshot);
        else
            batch->failures += QFileInfo(screenshot.originalPath).fileName() + QStringLiteral(": ") +
                               restored.error().message;
        return batch->next < batch->removed.size();
    };
    runBatch(step, [this, batch] { finishRestore(*batch); });
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

void ShelfSession::finishRestore(const RestoreBatch &batch) {
    if (!batch.restored.empty()) {
        forgetDismissal(batch.restored);
        // The folder may have been changed since the first of them came back.
        if (folderShelf().url == batch.context.folder)
            putBackOnShelf(batch.restored, batch.context);
        QStringList paths;
        std::vector<Shot> shots;
        for (const RemovedScreenshot &screenshot : batch.restored) {
            paths += screenshot.originalPath;
            shots.push_back(screenshot.shot);
        }
        m_settings.protectRestoredScreenshots(paths, m_services.now());
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
        Shot shot = screenshot.shot;
        shot.location = screenshot.originalPath;
        shots.push_back(std::move(shot));
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
