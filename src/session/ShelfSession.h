#pragma once

#include "base/Generation.h"
#include "base/Result.h"
#include "base/SlicedWork.h"
#include "platform/Trash.h"
#include "screenshots/AutoCleanCancellation.h"
#include "screenshots/AutoCleanCandidate.h"
#include "screenshots/AutoCleanRequest.h"
#include "screenshots/FileWatcherService.h"
#include "screenshots/FolderShelf.h"
#include "screenshots/ScreenshotAutoCopy.h"
#include "session/AutoCleanReview.h"
#include "session/EditorSaveContext.h"
#include "session/RemovedScreenshot.h"
#include "session/ScreenshotRemovalContext.h"
#include "session/ScreenshotUndoManager.h"
#include "session/ShelfSessionServices.h"
#include "settings/ScreenshotAutoCleanPeriod.h"
#include "tray/ClipboardStore.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tembra {

class AppSettings;

// The model behind the shelf's contents: the screenshots folder that the watcher feeds, the selection, the
// file tray, what happens to new captures, and the removal of screenshots with its undo and auto-clean. Main
// thread; one for the life of the program, owned by ShelfController, which hangs its callbacks on it.
class ShelfSession {
public:
    ShelfSession(AppSettings &settings, ShelfSessionServices services,
                 std::unique_ptr<FileWatcherService> fileWatcher);
    ~ShelfSession();
    ShelfSession(const ShelfSession &) = delete;
    ShelfSession &operator=(const ShelfSession &) = delete;

    // The folders being shown; the watcher feeds the first.
    std::vector<std::unique_ptr<FolderShelf>> shelves;
    QSet<ScreenshotFileIdentity> selected;
    // Stamps of the file versions that the user dismissed from the shelf.
    QSet<QString> dismissed;
    ClipboardStore clipboard;
    ScreenshotAutoCopy screenshotAutoCopy;
    ScreenshotUndoManager screenshotUndoManager;
    // Set by the owner while the shelf is started: timers and callbacks count only then.
    bool isRunning = false;
    // Set by the owner while an editor window shows a screenshot of this shelf.
    bool editorIsOpen = false;

    // Replaceable.
    std::function<Result<QString>(const QString &path, const Trash::Guard &)> moveScreenshotToTrash;
    std::function<void()> playScreenshotTrashSound;
    std::function<void()> playScreenshotRestoreSound;

    // Asked before auto-clean acts; true puts it off. `allowSettings` when the settings window may be open,
    // because it has just confirmed this run.
    std::function<bool(bool allowSettings)> isBusy = [](bool) { return false; };
    // Screenshots are about to leave the shelf.
    std::function<void()> onBeforeRemoval;
    // The session's contents changed by other means than the watcher.
    std::function<void()> onChange;
    // Forwarded from the watcher, after the selection was brought in step.
    std::function<void(FolderShelf &, bool, int)> onFolderChange;
    std::function<void(const std::vector<Shot> &)> onNewFiles;
    // Whether captures join those that were copied before.
    std::function<bool()> continuesScreenshotCopySeries = [] { return false; };
    // Shows a failure as title and message.
    std::function<void(const QString &title, const QString &message)> onError;
    // Asks the user whether auto-clean, which would move that many files, is to stay on.
    std::function<void(int count, ScreenshotAutoCleanPeriod, std::function<void(bool keeps)> decide)>
        onSafetyReview;

    [[nodiscard]] FolderShelf &folderShelf() { return *shelves.front(); }
    [[nodiscard]] const FolderShelf &folderShelf() const { return *shelves.front(); }
    [[nodiscard]] FileWatcherService &fileWatcher() { return *m_fileWatcher; }
    [[nodiscard]] AppSettings &settings() { return m_settings; }

    // Watches the files of the tray and the folder of the settings: that from the beginning when it is
    // another one than before.
    void refreshWatcher();
    void stopWatcher();
    // Reads the folder anew, as at the start: nothing in it is new.
    void rereadFolder();
    // Brings auto-copy and auto-clean in step with the settings.
    void applySettings();

    // Puts the files on the clipboard, and the image of the last of them.
    void copyScreenshots(const std::vector<Shot> &shots);
    // Moves screenshots to the Trash, but not pinned ones, as one step that can be undone. A long list is
    // worked through in slices.
    void removeScreenshots(const std::vector<Shot> &shots);
    // The one that the editor has open. A pinned one is refused.
    [[nodiscard]] Result<void> removeScreenshotFromEditor(const QString &path,
                                                          const ScreenshotFileIdentity &identity);
    // The last removal or restore, after what is under way; whether there is one.
    bool undo();
    bool redo();

    // The editor is about to write the screenshot's file; `originalFolder` when that is not where it is now.
    void beginEditorSave(const Shot &shot, const std::optional<QString> &originalFolder = {});
    // It has written there, or nothing.
    void finishEditorWrite(const std::optional<QString> &path);
    [[nodiscard]] bool isEditorSaving() const { return m_editorSaveContext.has_value(); }

    // How many files the period would move now; nothing is touched.
    void previewAutoClean(ScreenshotAutoCleanPeriod period, std::function<void(Result<int>)> completion);
    // Sets a period that the user has agreed to, knowing how much it moves, and moves that at once.
    void enableAutoClean(ScreenshotAutoCleanPeriod period);
    void runAutoCleanCheck(Instant now, bool allowSettings);
    void cancelAutoClean();
    void restartAutoClean();
    // Until the next check; nothing when none is scheduled.
    [[nodiscard]] std::optional<Scheduler::Duration> timeToAutoCleanCheck() const;
    [[nodiscard]] AutoCleanReview autoCleanReview() const;

private:
    using Phase = ScreenshotUndoManager::Phase;
    struct RemovalBatch;
    struct RestoreBatch;
    struct AutoCleanBatch;

    void wire();
    void folderChanged(FolderShelf &shelf, bool flag, int count);
    void followPins(const FolderShelf &shelf);
    void changed();
    // Works through a batch of file moves while the watcher waits.
    void runBatch(std::function<bool()> step, std::function<void()> done);

    // Removal.
    [[nodiscard]] ScreenshotRemovalContext screenshotRemovalContext() const;
    void moveToTrash(const std::vector<Shot> &shots, Phase phase);
    void forgetRemoved(RemovalBatch &batch) const;
    [[nodiscard]] bool isPinned(const QString &path, const ScreenshotFileIdentity &identity) const;
    // Nothing when the file is pinned and stays.
    [[nodiscard]] Result<std::optional<RemovedScreenshot>> trashScreenshot(const Shot &shot, bool automatic);
    void finishScreenshotRemoval(const std::vector<RemovedScreenshot> &removed,
                                 const ScreenshotRemovalContext &context, bool automatic,
                                 bool playConfirmationSound, Phase phase);
    void takeOffShelf(const std::vector<RemovedScreenshot> &removed);

    // Restore.
    void restoreScreenshots(const std::vector<RemovedScreenshot> &removed,
                            const ScreenshotRemovalContext &context, const QString &actionName, Phase phase);
    [[nodiscard]] Result<void> restoreScreenshot(const RemovedScreenshot &removed,
                                                 const ScreenshotRemovalContext &context);
    // Tells auto-clean of those that came back since.
    void protect(RestoreBatch &batch);
    void finishRestore(RestoreBatch &batch);
    void putBackOnShelf(const std::vector<RemovedScreenshot> &restored,
                        const ScreenshotRemovalContext &context);
    void forgetDismissal(const std::vector<RemovedScreenshot> &restored);
    // What was taken out of the tray can be put back, and taken out again.
    void registerTakenOut(const ClipboardRemoval &removal, Phase phase);
    void reportFailures(const QString &title, const QStringList &failures) const;

    // Editor.
    [[nodiscard]] std::optional<QString> pinnedPath(const QString &path,
                                                    const ScreenshotFileIdentity &identity) const;
    [[nodiscard]] std::optional<EditorSaveContext::Written>
    writtenFile(const QString &path, const EditorSaveContext &context) const;
    void rebind(const EditorSaveContext &context, const EditorSaveContext::Written &written);

    // Auto-clean.
    void scheduleAutoClean(Scheduler::Duration delay);
    [[nodiscard]] bool isHeldByUser(bool allowSettings) const;
    void setAutoCleanReview(AutoCleanReview review);
    [[nodiscard]] AutoCleanRequest autoCleanRequest(ScreenshotAutoCleanPeriod period, const QString &folder,
                                                    Instant now);
    void startAutoCleanRun(Instant now);
    void consumeAutoClean(const Result<std::vector<AutoCleanCandidate>> &candidates,
                          const AutoCleanRequest &request);
    void cleanCandidate(AutoCleanBatch &batch, const AutoCleanCandidate &candidate);
    void finishAutoCleanRun(const AutoCleanBatch &batch);
    void reviewAutoCleanAfterUpdate();
    void reviewCounted(const Result<int> &count, ScreenshotAutoCleanPeriod period,
                       const std::optional<QString> &folder);
    void reviewDecided(bool keeps, ScreenshotAutoCleanPeriod period, const std::optional<QString> &folder);
    [[nodiscard]] bool isAutoCleanFor(ScreenshotAutoCleanPeriod period,
                                      const std::optional<QString> &folder) const;

    AppSettings &m_settings;
    ShelfSessionServices m_services;
    std::unique_ptr<FileWatcherService> m_fileWatcher;
    std::optional<EditorSaveContext> m_editorSaveContext;

    bool m_autoCleanReviewInProgress = false;
    bool m_autoCleanReviewPresented = false;
    bool m_autoCleanProcessing = false;
    int m_autoCleanFailureCount = 0;
    ScreenshotAutoCleanPeriod m_scheduledAutoCleanPeriod = ScreenshotAutoCleanPeriod::never;
    std::optional<QString> m_scheduledAutoCleanFolder;
    std::shared_ptr<AutoCleanCancellation> m_autoCleanCancellation =
        std::make_shared<AutoCleanCancellation>();
    // Previews are asked for by themselves, whatever becomes of the runs; they end with the session.
    std::shared_ptr<AutoCleanCancellation> m_previewCancellation = std::make_shared<AutoCleanCancellation>();
    WorkItem m_autoCleanTimer;
    std::optional<Uptime> m_nextAutoCleanCheck;

    Generation m_life;
    SlicedWork m_batches;
};

} // namespace tembra
