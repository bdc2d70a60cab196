// Screenshots leave the shelf for the Trash.

#include "base/MainThread.h"
#include "session/ScreenshotRemovalError.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace tembra {

namespace {

QString translated(const char *text) {
    return QCoreApplication::translate("ScreenshotRemoval", text);
}

} // namespace

struct ShelfSession::RemovalBatch {
    std::vector<Shot> shots;
    ScreenshotRemovalContext context;
    std::size_t next = 0;
    std::vector<RemovedScreenshot> removed;
    QStringList failures;
};

ScreenshotRemovalContext ShelfSession::screenshotRemovalContext() const {
    const FolderShelf &shelf = folderShelf();
    ScreenshotRemovalContext context{.folder = shelf.url,
                                     .selection = selected,
                                     .trayOrder = clipboard.order(),
                                     .traySelection = clipboard.selectedIDs(),
                                     .trayGeneration = clipboard.importGeneration()};
    context.order.reserve(static_cast<qsizetype>(shelf.shots.size()));
    std::ranges::transform(shelf.shots, std::back_inserter(context.order), &Shot::identity);
    return context;
}

void ShelfSession::removeScreenshots(const std::vector<Shot> &shots) {
    requireMainThread();
    moveToTrash(shots, Phase::doing);
}

void ShelfSession::moveToTrash(const std::vector<Shot> &shots, Phase phase) {
    if (shots.empty())
        return;
    m_settings.refreshUnresolvedPins();
    const auto batch = std::make_shared<RemovalBatch>(RemovalBatch{shots, screenshotRemovalContext()});
    const auto step = [this, batch] {
        if (batch->next == 0)
            forgetRemoved(*batch);
        if (batch->shots.empty())
            return false;
        const Shot &shot = batch->shots[batch->next++];
        auto moved = trashScreenshot(shot, false);
        if (!moved)
            batch->failures +=
                QFileInfo(shot.location).fileName() + QStringLiteral(": ") + moved.error().message;
        else if (*moved)
            batch->removed.push_back(**std::move(moved));
        return batch->next < batch->shots.size();
    };
    runBatch(step, [this, batch, phase] {
        finishScreenshotRemoval(batch->removed, batch->context, false, true, phase);
        reportFailures(translated(QT_TRANSLATE_NOOP("ScreenshotRemoval", "Couldn’t Move to Trash")),
                       batch->failures);
    });
}

// What left the shelf while the batch waited, as the user asked for it twice.
void ShelfSession::forgetRemoved(RemovalBatch &batch) const {
    const FolderShelf &shelf = folderShelf();
    if (shelf.url != batch.context.folder || shelf.errorText)
        return;
    QSet<ScreenshotFileIdentity> left(batch.context.order.cbegin(), batch.context.order.cend());
    for (const Shot &shot : shelf.shots)
        left.remove(shot.identity);
    std::erase_if(batch.shots, [&left](const Shot &shot) { return left.contains(shot.identity); });
}

bool ShelfSession::isPinned(const QString &path, const ScreenshotFileIdentity &identity) const {
    const auto file = identity.resource();
    return m_settings.pinnedScreenshotPaths().contains(path) ||
           (file && m_settings.pinnedScreenshotFiles().contains(*file));
}

Result<std::optional<RemovedScreenshot>> ShelfSession::trashScreenshot(const Shot &shot, bool automatic) {
    if (automatic && m_settings.unavailablePinCount() > 0)
        return failure(ScreenshotRemovalError::pinsUnavailable());
    if (isPinned(shot.location, shot.identity))
        return std::nullopt;
    const QString path = shot.currentPath(m_services.files, m_services.references);
    if (path.isEmpty())
        return failure(ScreenshotRemovalError::hasChanged());
    if (path != shot.location && isPinned(path, shot.identity))
        return std::nullopt;
    // What is cleaned away by itself must lie where the shelf looks; what the user chose may have moved.
    if (automatic && !folderShelf().url)
        return failure(ScreenshotRemovalError::hasChanged());
    const Trash::Guard guard{.root = automatic ? *folderShelf().url : QString(),
                             .isExpected = [&](const FileFacts &facts) {
                                 return ScreenshotFileIdentity::of(path, facts) == shot.identity;
                             }};
    const auto moved = moveScreenshotToTrash(path, guard);
    if (!moved)
        return failure(ScreenshotRemovalError::ofRemoval(moved.error()));
    return RemovedScreenshot{.shot = shot,
                             .originalPath = path,
                             .trashPath = *moved,
                             .identity = shot.identity,
                             .trayEntries = clipboard.references(path, shot.identity)};
}

void ShelfSession::finishScreenshotRemoval(const std::vector<RemovedScreenshot> &removed,
                                           const ScreenshotRemovalContext &context, bool automatic,
                                           bool playConfirmationSound, Phase phase) {
    if (removed.empty())
        return;
    if (onBeforeRemoval)
        onBeforeRemoval();
    takeOffShelf(removed);
    const QString name = automatic ? translated(QT_TRANSLATE_NOOP("ScreenshotRemoval", "Auto-clean"))
                                   : translated(QT_TRANSLATE_NOOP("ScreenshotRemoval", "Move to Trash"));
    screenshotUndoManager.registerAction(phase, name, [this, removed, context, name](Phase next) {
        restoreScreenshots(removed, context, name, next);
    });
    if (playConfirmationSound)
        playScreenshotTrashSound();
    changed();
}

void ShelfSession::takeOffShelf(const std::vector<RemovedScreenshot> &removed) {
    QSet<ScreenshotFileIdentity> identities;
    QSet<QUuid> trayEntries;
    for (const RemovedScreenshot &screenshot : removed) {
        identities.insert(screenshot.identity);
        for (const ClipboardEntry &entry : screenshot.trayEntries)
            trayEntries.insert(entry.id);
    }
    std::erase_if(folderShelf().shots, [&](const Shot &shot) { return identities.contains(shot.identity); });
    selected.subtract(identities);
    clipboard.removeReferences(trayEntries);
}

void ShelfSession::reportFailures(const QString &title, const QStringList &failures) const {
    if (!failures.isEmpty() && onError)
        onError(title, failures.join(u'\n'));
}

Result<void> ShelfSession::removeScreenshotFromEditor(const QString &path,
                                                      const ScreenshotFileIdentity &identity) {
    requireMainThread();
    m_settings.refreshUnresolvedPins();
    const FolderShelf &shelf = folderShelf();
    const auto known = std::ranges::find(shelf.shots, identity, &Shot::identity);
    const Shot shot = known == shelf.shots.end() ? Shot{.location = path, .identity = identity} : *known;
    const ScreenshotRemovalContext context = screenshotRemovalContext();
    m_fileWatcher->pause();
    const auto moved = trashScreenshot(shot, false);
    if (moved && *moved)
        finishScreenshotRemoval({**moved}, context, false, true, Phase::doing);
    m_fileWatcher->resume();
    if (!moved)
        return failure(moved.error());
    return *moved ? Result<void>() : failure(ScreenshotRemovalError::isPinned());
}

} // namespace tembra
