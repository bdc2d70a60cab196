#include "app/AppDelegate.h"

#include "app/Alert.h"
#include "app/AppFlowCoordinator.h"
#include "app/CommandService.h"
#include "app/MainMenu.h"
#include "app/ScreenshotEditing.h"
#include "app/SettingsPresenting.h"
#include "app/UpdateAlerts.h"
#include "app/UpdateConfiguring.h"
#include "editor/model/EditorImageCopies.h"
#include "editor/model/ScreenshotEditStore.h"
#include "playback/PlaybackModule.h"
#include "screenshots/FileWatcherService.h"
#include "screenshots/FolderReader.h"
#include "screenshots/ScreenshotAutoCleanScan.h"
#include "screenshots/ScreenshotDestination.h"
#include "screenshots/ScreenshotLocationMonitor.h"
#include "screenshots/ScreenshotSaveLocation.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfController.h"
#include "updates/AppUpdater.h"

#include <QAction>
#include <QCoreApplication>

namespace tembra {

AppDelegate::AppDelegate(Platform &platform, Scheduler &scheduler)
    : m_platform(platform),
      m_scheduler(scheduler),
      m_captureDetector(*platform.captureMarkers, *platform.folderFiles),
      m_folderTraversal(platform.folders, *platform.fileFacts),
      m_capturePreferences(platform.screenCapturePreferences()),
      m_folderScanQueue(QStringLiteral("Tembra.FolderScan")),
      m_locationQueue(QStringLiteral("app.tembra.screenshot-location")),
      m_autoCleanQueue(QStringLiteral("Tembra.AutoClean")),
      m_screenshotCopyQueue(QStringLiteral("local.dova.Tembra.screenshot-copy")),
      m_clipboardQueue(QStringLiteral("Tembra.Clipboard.IO")),
      m_previewQueue(QStringLiteral("Tembra.Preview")),
      m_editorQueue(QStringLiteral("Tembra.Editor.IO")),
      m_editorImageQueue(QStringLiteral("Tembra.Editor.Images")),
      m_wordQueue(QStringLiteral("Tembra.Editor.WordRecognition")),
      m_ocrQueue(QStringLiteral("local.dova.Tembra.ocr")),
      m_desktopQueue(QStringLiteral("Tembra.DesktopScreenshots")),
      m_updateQueue(QStringLiteral("Tembra.Updates")),
      m_ocrRecognizer(*platform.textRecognizer, *platform.pictureDecoder, m_ocrQueue),
      m_freedMemory(scheduler, giveBackFreedMemory) {
    m_captureCommand.onFailed = [](const QString &sentence) {
        showAlert(QCoreApplication::translate("CaptureCommand", "Couldn’t Run the Command"), sentence);
    };
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    // It looks at what earlier versions left, so it comes before the settings migrate that.
    m_updater = makeUpdater();
    m_settings = makeSettings();
    m_editStore = makeEditStore();
    m_imageCopies = std::make_unique<EditorImageCopies>(
        EditorImageCopies::folder(m_platform.folders),
        EditorImageCopies::Services{*m_platform.pasteboard, *m_platform.fileCoordinator, m_editorQueue,
                                    m_scheduler});
    const OnboardingServices onboarding{.folders = m_platform.folders,
                                        .detector = m_captureDetector,
                                        .customPrefix = makeCustomPrefix(),
                                        .thumbnails = *m_platform.thumbnails,
                                        .desktopQueue = m_desktopQueue,
                                        .scheduler = m_scheduler};
    m_coordinator = std::make_unique<AppFlowCoordinator>(
        *m_settings, *m_platform.workspace, makeShelfController(), onboarding, [this] { terminate(); });
    m_coordinator->start();
    m_editing = makeEditing();
    m_editing->onClosed = [this] { m_freedMemory.giveBackSoon(); };
    m_settingsWindow = makeSettingsWindow();
    m_commands = std::make_unique<CommandService>(
        m_coordinator->shelfController(),
        CommandService::Hooks{
            .status = [this] { return status(); },
            .showSettings = [this](std::optional<SettingsPageId> page) { m_settingsWindow->show(page); },
            .reopen = [this] { applicationShouldHandleReopen(); },
            .quit = [this] { terminate(); }});
    ShelfController &shelf = m_coordinator->shelfController();
    m_editStore->onBadgesChanged = [this, &shelf] { shelf.setEditedScreenshots(m_editStore->badges()); };
    m_editStore->loadBadges({});
    m_imageCopies->discardAll();
    connectUpdater();
    m_updater->start();
}

ProgramStatus AppDelegate::status() const {
    return {.version = QCoreApplication::applicationVersion(),
            .shelf = m_coordinator->shelfController().status(),
            .editor = m_editing->status(),
            .onboarding = m_coordinator->onboardingStatus(),
            .updates = m_updater->status(),
            .settingsPage = m_settingsWindow->currentPage()};
}

std::unique_ptr<SettingsPresenting> AppDelegate::makeSettingsWindow() {
    return std::make_unique<SettingsPresenting>(
        SettingsPresenting::Services{.platform = m_platform,
                                     .scheduler = m_scheduler,
                                     .queue = m_ocrQueue,
                                     .settings = *m_settings,
                                     .shelf = m_coordinator->shelfController(),
                                     .updater = *m_updater,
                                     .onQuit = [this] { terminate(); }});
}

std::unique_ptr<AppUpdater> AppDelegate::makeUpdater() {
    return std::make_unique<AppUpdater>(AppUpdater::Services{.defaults = *m_platform.defaults,
                                                             .scheduler = m_scheduler,
                                                             .now = systemNow,
                                                             .workspace = *m_platform.workspace,
                                                             .queue = m_updateQueue},
                                        updateConfiguration(m_platform.folders));
}

void AppDelegate::connectUpdater() {
    AppUpdater *updater = m_updater.get();
    const MainMenu &menu = m_coordinator->mainMenu();
    QAction *item = menu.action(QStringLiteral("checkForUpdates"));
    const auto validate = [this, updater, item] {
        item->setEnabled(updater->canCheck());
        m_coordinator->shelfController().validateStatusMenu();
    };
    QObject::connect(&menu, &MainMenu::checkForUpdates, updater, &AppUpdater::checkForUpdates);
    QObject::connect(updater, &AppUpdater::changed, item, validate);
    validate();
    m_updateAlerts = std::make_unique<UpdateAlerts>(*updater, *m_platform.workspace);
    m_updateAlerts->isShownElsewhere = [this] { return m_settingsWindow->isShowing(SettingsPageId::about); };
}

std::unique_ptr<AppSettings> AppDelegate::makeSettings() {
    Bookmarks &bookmarks = *m_platform.bookmarks;
    const FileFactsReader &facts = *m_platform.fileFacts;
    AppSettings::Functions functions{
        .updateSystemFolder =
            [this](const QString &folder) {
                return ScreenshotSaveLocation::setFolder(folder, *m_capturePreferences);
            },
        .thumbnailPreference = ScreenshotThumbnailPreference::system(*m_capturePreferences),
        .createBookmark = [&bookmarks](const QString &path) { return bookmarks.create(path); },
        .resolvePinnedBookmark =
            [&bookmarks, &facts](const QByteArray &bookmark) {
                return bookmarks.resolve(bookmark).map([&facts](const Bookmarks::Resolved &resolved) {
                    const auto known = facts.facts(resolved.path);
                    return PinnedScreenshot::Resolved{resolved.path, known ? known->resource : std::nullopt};
                });
            },
        .bookmarkedFile = [&bookmarks](const QByteArray &bookmark) { return bookmarks.resource(bookmark); }};
    return std::make_unique<AppSettings>(*m_platform.defaults, FolderPreferences(),
                                         ScreenshotFolderAccess(bookmarks, facts, m_platform.folders),
                                         std::move(functions));
}

std::unique_ptr<ScreenshotEditStore> AppDelegate::makeEditStore() {
    return std::make_unique<ScreenshotEditStore>(
        ScreenshotEditStore::folder(m_platform.folders),
        ScreenshotEditServices{.files = *m_platform.fileFacts,
                               .bookmarks = *m_platform.bookmarks,
                               .references = *m_platform.fileReferences,
                               .coordinator = *m_platform.fileCoordinator,
                               .thumbnails = *m_platform.thumbnailCache,
                               .queue = m_editorQueue,
                               .scheduler = m_scheduler});
}

std::unique_ptr<ScreenshotEditing> AppDelegate::makeEditing() {
    const ScreenshotEditorServices services{.documents = {.store = *m_editStore,
                                                          .copies = *m_imageCopies,
                                                          .coordinator = *m_platform.fileCoordinator,
                                                          .files = *m_platform.fileFacts,
                                                          .io = m_editorQueue,
                                                          .images = m_editorImageQueue,
                                                          .scheduler = m_scheduler},
                                            .defaults = *m_platform.defaults,
                                            .pasteboard = *m_platform.pasteboard,
                                            .thumbnails = *m_platform.thumbnails,
                                            .workspace = *m_platform.workspace,
                                            .recognizer = *m_platform.textRecognizer,
                                            .wordQueue = m_wordQueue};
    return std::make_unique<ScreenshotEditing>(services, m_coordinator->shelfController(),
                                               m_coordinator->mainMenu(), [this] { terminate(); });
}

std::unique_ptr<ShelfController> AppDelegate::makeShelfController() {
    const ShelfServices services{.scheduler = m_scheduler,
                                 .uptime = systemUptime,
                                 .now = systemNow,
                                 .displays = *m_platform.displays,
                                 .workspace = *m_platform.workspace,
                                 .inputMonitor = *m_platform.inputMonitor,
                                 .panelWindows = *m_platform.panelWindows,
                                 .hotZones = *m_platform.hotZones,
                                 .hotKeys = *m_platform.hotKeys,
                                 .pasteboard = *m_platform.pasteboard,
                                 .thumbnails = *m_platform.thumbnails,
                                 .files = *m_platform.fileFacts,
                                 .pictures = *m_platform.pictureDecoder,
                                 .recognizer = m_ocrRecognizer,
                                 .previewQueue = m_previewQueue,
                                 .isCapture = [this](const QString &path) { return isCapture(path); },
                                 .makeRecordingPlayer = makeRecordingPlayer};
    auto controller =
        std::make_unique<ShelfController>(*m_settings, makeSession(), makeLocationMonitor(), services);
    controller->onError = showAlert;
    controller->onNewCaptures = [this](const std::vector<Shot> &shots) { receiveNewCaptures(shots); };
    controller->onCollapsed = [this] { m_freedMemory.giveBackSoon(); };
    controller->onQuit = [this] { terminate(); };
    controller->onCheckForUpdates = [this] { m_updater->checkForUpdates(); };
    controller->canCheckForUpdates = [this] { return m_updater->canCheck(); };
    return controller;
}

// In the order in which they were taken.
void AppDelegate::receiveNewCaptures(const std::vector<Shot> &shots) {
    m_freedMemory.giveBackSoon();
    for (auto shot = shots.rbegin(); shot != shots.rend(); ++shot) {
        m_captureCommand.run(m_settings->state().newCaptureCommand, shot->location);
        if (onNewCapture)
            onNewCapture(shot->location);
    }
}

bool AppDelegate::isCapture(const QString &path) const {
    return m_captureDetector.isCapture(path, m_capturePreferences->name().value_or(QString()));
}

std::function<QString()> AppDelegate::makeCustomPrefix() const {
    // Made by the first call, on the queue, which is the only one to use it.
    auto preferences = std::make_shared<std::unique_ptr<ScreenCapturePreferences>>();
    return [preferences, make = m_platform.screenCapturePreferences] {
        if (!*preferences)
            *preferences = make();
        return (*preferences)->name().value_or(QString());
    };
}

std::unique_ptr<ShelfSession> AppDelegate::makeSession() {
    ShelfSessionServices services{
        .scheduler = m_scheduler,
        .uptime = systemUptime,
        .now = systemNow,
        .defaults = *m_platform.defaults,
        .files = *m_platform.fileFacts,
        .references = *m_platform.fileReferences,
        .volumes = *m_platform.volumes,
        .folderEvents = *m_platform.folderEvents,
        .workspace = *m_platform.workspace,
        .promises = *m_platform.filePromises,
        .trash = *m_platform.trash,
        .pasteboard = *m_platform.pasteboard,
        .pictures = *m_platform.pictureDecoder,
        .sounds = *m_platform.sounds,
        .folders = m_platform.folders,
        .autoCleanQueue = m_autoCleanQueue,
        .copyQueue = m_screenshotCopyQueue,
        .clipboardQueue = m_clipboardQueue,
        .isCapture = [this](const QString &path) { return isCapture(path); },
        .folderTraversal =
            [this](const QString &folder) { return m_folderTraversal.includesSubfolders(folder); },
        .autoCleanScan = std::make_shared<ScreenshotAutoCleanScan>(*m_platform.folderFiles, m_captureDetector,
                                                                   makeCustomPrefix())};
    return std::make_unique<ShelfSession>(*m_settings, std::move(services), makeFileWatcher());
}

std::unique_ptr<FileWatcherService> AppDelegate::makeFileWatcher() {
    auto reader =
        std::make_shared<FolderReader>(*m_platform.folderFiles, m_captureDetector, makeCustomPrefix());
    FileWatcherService::Services services{.events = *m_platform.folderEvents,
                                          .scheduler = m_scheduler,
                                          .uptime = systemUptime,
                                          .now = systemNow,
                                          .queue = m_folderScanQueue,
                                          .detector = m_captureDetector,
                                          .folderTraversal = [this](const QString &folder) {
                                              return m_folderTraversal.includesSubfolders(folder);
                                          }};
    return std::make_unique<FileWatcherService>(std::move(services), std::move(reader));
}

std::unique_ptr<ScreenshotLocationMonitor> AppDelegate::makeLocationMonitor() {
    auto read = [make = m_platform.screenCapturePreferences, folders = m_platform.folders] {
        const auto preferences = make();
        return ScreenshotDestination::read(*preferences, folders);
    };
    return std::make_unique<ScreenshotLocationMonitor>(std::move(read), m_locationQueue, m_scheduler,
                                                       *m_platform.workspace);
}

bool AppDelegate::applicationShouldHandleReopen() {
    m_coordinator->reopen();
    return false;
}

bool AppDelegate::applicationShouldTerminate() {
    return !m_editing || m_editing->canTerminate();
}

void AppDelegate::applicationWillTerminate() {
    if (m_settingsWindow)
        m_settingsWindow->close();
    if (m_coordinator)
        m_coordinator->stop();
}

void AppDelegate::terminate() {
    // After the answer to whoever asked for it is on its way.
    if (applicationShouldTerminate())
        m_scheduler.post([] { QCoreApplication::quit(); });
}

Result<QString> AppDelegate::perform(const QString &command, const QStringList &arguments) {
    if (m_commands)
        return m_commands->perform(command, arguments);
    return failure({QStringLiteral("Tembra.AppDelegate"),
                    1,
                    QCoreApplication::translate("AppDelegate", "Tembra is still starting."),
                    {}});
}

} // namespace tembra
