#include "app/OnboardingCoordinator.h"

#include "platform/linux/LinuxBookmarks.h"
#include "screenshots/FileWatcherService.h"
#include "screenshots/FolderReader.h"
#include "screenshots/ScreenshotLocationMonitor.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "settings/SettingsKeys.h"
#include "shelf/ShelfController.h"
#include "support/FakeDesktop.h"
#include "support/FakeFolderEvents.h"
#include "support/FakeHotKeys.h"
#include "support/FakeInputMonitor.h"
#include "support/FakeOCRRecognizer.h"
#include "support/FakeThumbnails.h"
#include "support/FakeWorkspace.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/SessionServices.h"
#include "windows/onboarding/OnboardingWindow.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

using Step = OnboardingStep;

// The whole program between settings and windows, over real folders, with time and tools of the test.
class OnboardingCoordinatorTest : public testing::Test {
protected:
    OnboardingCoordinatorTest() {
        QDir().mkpath(folder);
        QDir().mkpath(folders.desktop);
        input.pointerPoint = {640, 700};
    }
    ~OnboardingCoordinatorTest() override { end(); }

    // What each start of the program does.
    void start() {
        end();
        settings = std::make_unique<AppSettings>(parts.defaults, FolderPreferences(),
                                                 ScreenshotFolderAccess(bookmarks, parts.files, folders),
                                                 functions());
        auto watcher = std::make_unique<FileWatcherService>(
            FileWatcherService::Services{events, parts.scheduler, parts.scheduler.uptimeClock(), parts.now,
                                         queue, parts.detector, [](const QString &) { return true; }},
            std::make_shared<FolderReader>(parts.folderFiles, parts.detector, [] { return QString(); }));
        auto shelf = std::make_unique<ShelfController>(
            *settings, std::make_unique<ShelfSession>(*settings, parts.services(), std::move(watcher)),
            std::make_unique<ScreenshotLocationMonitor>([this] { return destination; }, queue,
                                                        parts.scheduler, workspace),
            ShelfServices{parts.scheduler, parts.scheduler.uptimeClock(), parts.now, displays, workspace,
                          input, panelWindows, hotZones, hotKeys, parts.pasteboard, thumbnails, parts.files,
                          parts.pictures, recognizer, queue,
                          [this](const QString &path) { return parts.detector.isCapture(path); }});
        coordinator = std::make_unique<OnboardingCoordinator>(
            *settings, std::move(shelf),
            OnboardingServices{folders, parts.detector, [] { return QString(); }, pictures, desktopQueue,
                               parts.scheduler});
        coordinator->start();
        settle();
    }
    void end() {
        if (coordinator)
            coordinator->stop();
        coordinator.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    AppSettings::Functions functions() {
        return {
            .updateSystemFolder =
                [this](const QString &chosen) {
                    destination = ScreenshotDestination::toFolder(chosen);
                    return Result<void>();
                },
            .thumbnailPreference = {[] { return std::nullopt; }, [](auto) { return Result<void>(); }},
            .createBookmark = [this](const QString &path) { return bookmarks.create(path); },
            .resolvePinnedBookmark = [](const QByteArray &) -> Result<PinnedScreenshot::Resolved> {
                return failure({.domain = Bookmarks::errorDomain, .code = Bookmarks::gone});
            },
            .bookmarkedFile = [this](const QByteArray &bookmark) { return bookmarks.resource(bookmark); }};
    }
    void settle() {
        for (int turn = 0; turn < 3; ++turn) {
            parts.scheduler.advance(100ms);
            queue.runAll();
            desktopQueue.runAll();
            parts.scheduler.settle();
        }
    }
    void capture() {
        writeFile(folder + QStringLiteral("/Screenshot from 2026-11-21 10-15-22.png"), pictureBytes("png"));
        events.sendDirectory(FolderEvents::write);
        settle();
    }
    // The user presses the page's first button.
    void goOn() {
        Q_EMIT window()->primaryRequested();
        settle();
    }
    [[nodiscard]] static OnboardingWindow *window() {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *one : windows) {
            auto *const found = qobject_cast<OnboardingWindow *>(one);
            if (found && found->isVisible())
                return found;
        }
        return nullptr;
    }
    [[nodiscard]] bool isShelfOpen() const { return coordinator->shelfController().isExpanded(); }
    [[nodiscard]] Step step() const { return coordinator->status().step; }

    QTemporaryDir root;
    QString folder = root.filePath(QStringLiteral("Screenshots"));
    StandardFolders folders{.home = root.path(),
                            .desktop = root.filePath(QStringLiteral("Desktop")),
                            .trash = {root.filePath(QStringLiteral("Trash"))}};
    SessionServices parts;
    LinuxBookmarks bookmarks{parts.files, folders};
    ManualQueue queue;
    ManualQueue desktopQueue;
    FakeFolderEvents events;
    FakeWorkspace workspace;
    FakeInputMonitor input;
    FakeDisplays displays;
    FakePanelWindows panelWindows;
    FakeHotZones hotZones;
    FakeHotKeys hotKeys;
    NoThumbnails thumbnails;
    FakeThumbnails pictures;
    FakeOCRRecognizer recognizer;
    ScreenshotDestination destination = ScreenshotDestination::toFolder(folder);
    std::unique_ptr<AppSettings> settings;
    std::unique_ptr<OnboardingCoordinator> coordinator;
};

} // namespace

TEST_F(OnboardingCoordinatorTest, aFirstRunEndsOnTheOpenShelf) {
    start();
    ASSERT_TRUE(window());
    EXPECT_FALSE(settings->state().hasFolderAccess) << "the tool's folder is only suggested";
    goOn();
    goOn();
    EXPECT_EQ(settings->state().screenshotsFolder, folder);
    EXPECT_EQ(step(), Step::firstScreenshot);
    EXPECT_FALSE(isShelfOpen());
    capture();
    EXPECT_EQ(coordinator->status().heading, QStringLiteral("Got it! First one caught"));
    goOn();
    EXPECT_FALSE(window());
    EXPECT_TRUE(isShelfOpen());
    start();
    EXPECT_FALSE(window());
    EXPECT_EQ(step(), Step::done);
    EXPECT_FALSE(isShelfOpen());
}

TEST_F(OnboardingCoordinatorTest, openedAgainItComesBackInsteadOfTheShelfUntilItIsOver) {
    start();
    goOn();
    window()->close();
    EXPECT_FALSE(coordinator->status().isVisible);
    const QString other = root.filePath(QStringLiteral("Other"));
    destination = ScreenshotDestination::toFolder(other);
    coordinator->reopen();
    settle();
    ASSERT_TRUE(window());
    EXPECT_EQ(step(), Step::folder);
    EXPECT_EQ(window()->page().path, QStringLiteral("~/Other")) << "the suggestion is asked for again";
    EXPECT_FALSE(isShelfOpen());
    goOn();
    Q_EMIT window()->linkRequested();
    EXPECT_FALSE(window());
    coordinator->shelfController().collapse();
    coordinator->reopen();
    EXPECT_TRUE(isShelfOpen());
}

TEST_F(OnboardingCoordinatorTest, anInstallThatHasCaughtSomethingIsNotAskedAnything) {
    start();
    ASSERT_TRUE(settings->grantScreenshotsFolder(folder, false, false));
    capture();
    for (const auto &[hasCaught, expected] :
         {std::pair{false, Step::firstScreenshot}, std::pair{true, Step::done}}) {
        parts.defaults.setBoolean(settingsKey::hasCaughtFirstScreenshot, hasCaught);
        start();
        EXPECT_EQ(step(), expected);
        EXPECT_EQ(window() != nullptr, expected != Step::done);
    }
    EXPECT_TRUE(settings->state().hasCompletedOnboarding);
}

TEST_F(OnboardingCoordinatorTest, closingTheWindowAfterTheCaptureIsTheEndOfIt) {
    start();
    goOn();
    goOn();
    window()->close();
    EXPECT_FALSE(settings->state().hasCompletedOnboarding);
    coordinator->reopen();
    EXPECT_EQ(step(), Step::firstScreenshot);
    capture();
    window()->close();
    EXPECT_TRUE(settings->state().hasCompletedOnboarding);
    EXPECT_FALSE(isShelfOpen());
}

TEST_F(OnboardingCoordinatorTest, afterItsEndAMissingFolderIsTheToolsWithoutAQuestion) {
    parts.defaults.setBoolean(settingsKey::hasCompletedOnboarding, true);
    start();
    EXPECT_FALSE(window());
    EXPECT_EQ(settings->state().screenshotsFolder, folder);
}
