#pragma once

#include "app/CaptureCommand.h"
#include "app/FreedMemory.h"
#include "base/ThreadQueue.h"
#include "platform/Platform.h"
#include "recognition/model/OCRRecognizer.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "screenshots/ScreenshotFolderTraversal.h"

#include <functional>
#include <memory>

namespace tembra {

class AppFlowCoordinator;
class AppSettings;
class AppUpdater;
class CommandService;
class EditorImageCopies;
class FileWatcherService;
class ScreenshotEditStore;
class ScreenshotEditing;
class ScreenshotLocationMonitor;
class ShelfController;
class ShelfSession;
class SettingsPresenting;
class UpdateAlerts;
struct ProgramStatus;
struct Shot;

// The composition root: makes the settings, then the flow, and answers the program's life-cycle questions.
// Main thread; lives in main().
class AppDelegate {
public:
    AppDelegate(Platform &platform, Scheduler &scheduler);
    ~AppDelegate();
    AppDelegate(const AppDelegate &) = delete;
    AppDelegate &operator=(const AppDelegate &) = delete;

    void applicationDidFinishLaunching();
    // Whether the system should do anything further.
    bool applicationShouldHandleReopen();
    // Asks the user where something would be lost: then the program ends later, by itself.
    [[nodiscard]] bool applicationShouldTerminate();
    void applicationWillTerminate();
    // Ends the program if it may end.
    void terminate();

    // Called with each new capture, for those who listen from outside.
    std::function<void(const QString &path)> onNewCapture;

    // What a command of another process does here.
    [[nodiscard]] Result<QString> perform(const QString &command, const QStringList &arguments);

private:
    [[nodiscard]] std::unique_ptr<AppSettings> makeSettings();
    [[nodiscard]] std::unique_ptr<ShelfController> makeShelfController();
    [[nodiscard]] std::unique_ptr<ScreenshotEditStore> makeEditStore();
    [[nodiscard]] std::unique_ptr<ScreenshotEditing> makeEditing();
    [[nodiscard]] std::unique_ptr<ShelfSession> makeSession();
    [[nodiscard]] std::unique_ptr<SettingsPresenting> makeSettingsWindow();
    [[nodiscard]] ProgramStatus status() const;
    [[nodiscard]] std::unique_ptr<AppUpdater> makeUpdater();
    // Its items in the menus, and what it tells the user.
    void connectUpdater();
    void receiveNewCaptures(const std::vector<Shot> &shots);
    [[nodiscard]] std::unique_ptr<FileWatcherService> makeFileWatcher();
    // Asks the screenshot tool how names begin, on the queue that the function is used on.
    [[nodiscard]] std::function<QString()> makeCustomPrefix() const;
    // Main thread.
    [[nodiscard]] bool isCapture(const QString &path) const;
    [[nodiscard]] std::unique_ptr<ScreenshotLocationMonitor> makeLocationMonitor();

    Platform &m_platform;
    Scheduler &m_scheduler;
    const ScreenshotCaptureDetector m_captureDetector;
    const ScreenshotFolderTraversal m_folderTraversal;
    // The main thread's own; each queue has another.
    std::unique_ptr<ScreenCapturePreferences> m_capturePreferences;
    // Outlives the queue on which it works.
    std::unique_ptr<ScreenshotEditStore> m_editStore;
    ThreadQueue m_folderScanQueue;
    ThreadQueue m_locationQueue;
    ThreadQueue m_autoCleanQueue;
    ThreadQueue m_screenshotCopyQueue;
    ThreadQueue m_clipboardQueue;
    ThreadQueue m_previewQueue;
    ThreadQueue m_editorQueue;
    ThreadQueue m_editorImageQueue;
    ThreadQueue m_wordQueue;
    ThreadQueue m_ocrQueue;
    ThreadQueue m_desktopQueue;
    ThreadQueue m_updateQueue;
    OCRRecognizer m_ocrRecognizer;
    CaptureCommand m_captureCommand;
    FreedMemory m_freedMemory;
    std::unique_ptr<EditorImageCopies> m_imageCopies;
    std::unique_ptr<AppSettings> m_settings;
    std::unique_ptr<AppUpdater> m_updater;
    std::unique_ptr<UpdateAlerts> m_updateAlerts;
    std::unique_ptr<AppFlowCoordinator> m_coordinator;
    std::unique_ptr<ScreenshotEditing> m_editing;
    std::unique_ptr<SettingsPresenting> m_settingsWindow;
    std::unique_ptr<CommandService> m_commands;
};

} // namespace tembra
