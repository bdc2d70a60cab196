#include "shelf/ShelfController.h"

#include "platform/linux/LinuxBookmarks.h"
#include "recognition/ui/OCRPanel.h"
#include "screenshots/FileWatcherService.h"
#include "screenshots/FolderReader.h"
#include "screenshots/ScreenshotLocationMonitor.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "support/FakeDesktop.h"
#include "support/FakeFolderEvents.h"
#include "support/FakeHotKeys.h"
#include "support/FakeInputMonitor.h"
#include "support/FakeOCRRecognizer.h"
#include "support/FakeWorkspace.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/SessionServices.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QTemporaryDir>
#include <QWindow>

#include <gtest/gtest.h>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

constexpr ScreenPoint atTopEdge{640, 2};
constexpr ScreenPoint farAway{640, 700};
const QString captureName = QStringLiteral("Screenshot from 2026-11-21 10-15-22.png");

// The style of a desktop that wants no motion: everything is at once where it goes.
class StillStyle final : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override {
        return hint == SH_Widget_Animation_Duration
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

// The whole shelf over a real folder, with time, events, input and screens of the test.
class ShelfControllerTest : public testing::Test {
protected:
    ShelfControllerTest() {
        QApplication::setStyle(new StillStyle);
        QDir().mkpath(folder);
        input.pointerPoint = farAway;
        destination = ScreenshotDestination::toFolder(folder);
    }

    void start(bool granted = true) {
        if (granted) {
            EXPECT_TRUE(settings.grantScreenshotsFolder(folder, false, false));
        }
        start(settings);
    }

    void start(AppSettings &appSettings) {
        controller = std::make_unique<ShelfController>(
            appSettings, std::make_unique<ShelfSession>(appSettings, parts.services(), makeWatcher()),
            std::make_unique<ScreenshotLocationMonitor>([this] { return destination; }, queue, scheduler,
                                                        workspace),
            ShelfServices{scheduler, scheduler.uptimeClock(), clock, displays, workspace, input, panelWindows,
                          hotZones, hotKeys, parts.pasteboard, thumbnails, files, parts.pictures, recognizer,
                          previewQueue, [this](const QString &path) { return detector.isCapture(path); }});
        controller->onError = [this](const QString &title, const QString &) { errors += title; };
        controller->askForClearing = [this](int count, int pinned, std::function<void()> clear) {
            EXPECT_EQ(pinned, 1);
            clearedCount = count;
            clear();
        };
        controller->askForSafetyReview = [this](int count, ScreenshotAutoCleanPeriod, auto answer) {
            reviewedCount = count;
            decide = std::move(answer);
        };
        controller->start();
        settle();
    }

    AppSettings::Functions functions() {
        return {
            .updateSystemFolder =
                [this](const QString &chosen) {
                    destination = ScreenshotDestination::toFolder(chosen);
                    return systemRefusal;
                },
            .thumbnailPreference = {[] { return std::nullopt; }, [](auto) { return Result<void>(); }},
            .createBookmark = [this](const QString &path) { return bookmarks.create(path); },
            .resolvePinnedBookmark = [](const QByteArray &) -> Result<PinnedScreenshot::Resolved> {
                return failure({.domain = Bookmarks::errorDomain, .code = Bookmarks::gone});
            },
            .bookmarkedFile = [this](const QByteArray &bookmark) { return bookmarks.resource(bookmark); }};
    }

    std::unique_ptr<FileWatcherService> makeWatcher() {
        return std::make_unique<FileWatcherService>(
            FileWatcherService::Services{events, scheduler, scheduler.uptimeClock(), clock, queue, detector,
                                         [](const QString &) { return true; }},
            std::make_shared<FolderReader>(parts.folderFiles, detector, [] { return QString(); }));
    }

    // Lets what is scheduled soon and what is queued happen.
    void settle() {
        for (int turn = 0; turn < 3; ++turn) {
            scheduler.advance(100ms);
            queue.runAll();
            parts.copyQueue.runAll();
            parts.autoCleanQueue.runAll();
            scheduler.settle();
        }
    }

    void capture(const QString &name = captureName) {
        writeFile(folder + u'/' + name, pictureBytes("png"));
        events.sendDirectory(FolderEvents::write);
        settle();
    }

    void movePointer(ScreenPoint point) {
        input.send(InputMonitor::Kind::rightDown, point);
        scheduler.advance(0s);
    }

    [[nodiscard]] ShelfStatus status() const { return controller->status(); }
    // As the panel's window gets it.
    static void pressCtrl(Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier);
        QCoreApplication::sendEvent(recognitionPanel()->window()->windowHandle(), &event);
    }
    [[nodiscard]] static OCRPanel *recognitionPanel() {
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            if (auto *const panel = qobject_cast<OCRPanel *>(widget))
                return panel;
        }
        return nullptr;
    }
    // Of the panel for text recognition, by its title.
    [[nodiscard]] static QAbstractButton *recognitionButton(const QString &title) {
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            auto *const button = qobject_cast<QAbstractButton *>(widget);
            if (button && button->isVisible() && button->text() == title)
                return button;
        }
        return nullptr;
    }

    QTemporaryDir root;
    QString folder = root.filePath(QStringLiteral("Screenshots"));
    StandardFolders folders{.trash = {root.filePath(QStringLiteral("Trash"))}};
    SessionServices parts;
    const LinuxFileFactsReader &files = parts.files;
    const ScreenshotCaptureDetector &detector = parts.detector;
    ManualScheduler &scheduler = parts.scheduler;
    const WallClock &clock = parts.now;
    MemoryUserDefaults &defaults = parts.defaults;
    LinuxBookmarks bookmarks{files, folders};
    ManualQueue queue;
    ManualQueue previewQueue;
    FakeFolderEvents events;
    FakeWorkspace workspace;
    FakeInputMonitor input;
    FakeDisplays displays;
    FakePanelWindows panelWindows;
    FakeHotZones hotZones;
    FakeHotKeys hotKeys;
    NoThumbnails thumbnails;
    FakeOCRRecognizer recognizer;
    AppSettings settings{defaults, FolderPreferences(), ScreenshotFolderAccess(bookmarks, files, folders),
                         functions()};
    ScreenshotDestination destination;
    Result<void> systemRefusal;
    QStringList errors;
    int reviewedCount = 0;
    int clearedCount = 0;
    std::function<void(bool)> decide;
    std::unique_ptr<ShelfController> controller;
};

} // namespace

TEST_F(ShelfControllerTest, aNewCaptureIsAnnouncedAndStandsUnderToday) {
    start();
    capture();
    EXPECT_TRUE(status().showingNotification);
    EXPECT_EQ(status().notificationText, QStringLiteral("Got it! First one caught"));
    scheduler.advance(10s);
    EXPECT_FALSE(status().showingNotification);

    capture(QStringLiteral("Screenshot from 2026-11-21 10-15-23.png"));
    EXPECT_EQ(status().notificationDetail, QStringLiteral("Screenshot saved · copied"));
    ASSERT_EQ(status().sections.size(), 1U);
    EXPECT_EQ(status().sections[0].title, QStringLiteral("Today"));
    EXPECT_EQ(status().sections[0].count, 2);
}

TEST_F(ShelfControllerTest, nothingIsAnnouncedToWhomeverSwitchedThatOffOrLooksAtTheShelf) {
    start();
    settings.setScreenshotNotifications(false);
    capture();
    EXPECT_FALSE(status().showingNotification);
    EXPECT_TRUE(status().lastCapture);

    settings.setScreenshotNotifications(true);
    movePointer(atTopEdge);
    capture(QStringLiteral("Screenshot from 2026-11-21 10-15-23.png"));
    EXPECT_FALSE(status().showingNotification);
    EXPECT_EQ(status().screenshotCount, 2);
}

TEST_F(ShelfControllerTest, clearingAsksAndSparesThePinnedAndCanBeUndone) {
    start();
    capture();
    capture(QStringLiteral("Screenshot from 2026-11-21 10-15-23.png"));
    ASSERT_TRUE(settings.setScreenshotsPinned({folder + u'/' + captureName}, true));
    controller->clearScreenshots();
    settle();
    EXPECT_EQ(clearedCount, 1);
    EXPECT_EQ(status().screenshotCount, 1);
    EXPECT_EQ(status().undo, QStringList{QStringLiteral("Move to Trash")});
    controller->undo();
    settle();
    EXPECT_EQ(status().screenshotCount, 2);
}

TEST_F(ShelfControllerTest, clearingSparesWhatIsCapturedDuringTheQuestion) {
    start();
    capture();
    controller->askForClearing = [this](int, int, const std::function<void()> &clear) {
        capture(QStringLiteral("Screenshot from 2026-11-21 10-15-23.png"));
        clear();
    };
    controller->clearScreenshots();
    settle();
    EXPECT_EQ(QDir(folder).entryList(QDir::Files),
              QStringList{QStringLiteral("Screenshot from 2026-11-21 10-15-23.png")});
}

TEST_F(ShelfControllerTest, aRemovalThatNobodySawIsToldWithAnOfferToUndoIt) {
    start();
    capture();
    scheduler.advance(10s);
    ASSERT_FALSE(status().showingNotification);
    controller->askForClearing = [](int, int, const std::function<void()> &clear) { clear(); };
    controller->clearScreenshots();
    EXPECT_EQ(status().notificationText, QStringLiteral("Screenshots moved to Trash"));
    controller->undo();
    settle();
    EXPECT_FALSE(status().showingNotification);
    EXPECT_EQ(status().screenshotCount, 1);
}

TEST_F(ShelfControllerTest, thePointerOnANotificationOpensTheShelf) {
    start();
    capture();
    movePointer({640, 60});
    EXPECT_TRUE(status().expanded);
    EXPECT_FALSE(status().showingNotification);
}

TEST_F(ShelfControllerTest, tellsWhenCapturesGoElsewhere) {
    struct Case {
        ScreenshotDestination destination;
        ScreenshotFolderState state;
        const char *text;
    };
    start();
    for (const Case &c : {Case{ScreenshotDestination::toClipboard(), ScreenshotFolderState::clipboard,
                               "Screenshots aren’t saving to a folder"},
                          Case{ScreenshotDestination::toFolder(root.filePath(QStringLiteral("Other"))),
                               ScreenshotFolderState::elsewhere, "Screenshot location changed"},
                          Case{ScreenshotDestination::toOther(QStringLiteral("mail")),
                               ScreenshotFolderState::other, "Screenshots aren’t saving to a folder"}}) {
        destination = c.destination;
        workspace.raise(Workspace::Event::didWake);
        settle();
        EXPECT_EQ(status().folderState, c.state);
        EXPECT_EQ(status().notificationText, QString::fromUtf8(c.text));
        scheduler.advance(10s);
    }
}

TEST_F(ShelfControllerTest, aFolderThatTheUserChoosesBecomesTheToolsOwn) {
    start(false);
    EXPECT_EQ(status().folderState, ScreenshotFolderState::none);
    const QString chosen = root.filePath(QStringLiteral("Chosen"));
    QDir().mkpath(chosen);
    controller->askForFolder = [&chosen](const QString &suggested) {
        EXPECT_EQ(QFileInfo(suggested).fileName(), QStringLiteral("Screenshots"));
        return std::optional(chosen);
    };
    controller->chooseFolder();
    settle();
    EXPECT_EQ(status().folder, chosen);
    EXPECT_EQ(status().folderState, ScreenshotFolderState::ready);
    EXPECT_FALSE(status().showingNotification) << "the user knows that the place changed";
    EXPECT_TRUE(status().expanded) << "the user sees what the choice did";
    EXPECT_TRUE(errors.isEmpty());
}

TEST_F(ShelfControllerTest, aFolderThatTheToolRefusesChangesNothing) {
    start();
    systemRefusal =
        failure({QStringLiteral("Tembra.ScreenshotSaveLocation"), 1, QStringLiteral("refused"), {}});
    controller->askForFolder = [this](const QString &) { return std::optional(root.path()); };
    controller->chooseFolder();
    EXPECT_EQ(errors, QStringList(QStringLiteral("refused")));
    EXPECT_EQ(status().folder, folder);
    controller->askForFolder = [](const QString &) { return std::nullopt; };
    controller->chooseFolder();
    EXPECT_EQ(status().folder, folder);
}

TEST_F(ShelfControllerTest, showsTheTextOfAnImageInAPanelThatHasRoomForIt) {
    const QStringList longText(30, QStringLiteral("a line of text"));
    start();
    controller->openManually();
    const double usual = status().frame.height;
    for (const double height : {800.0, 500.0}) {
        DisplayFacts display = displays.screens.front();
        display.frame.height = height;
        display.availableHeight = height;
        displays.set({display});
        scheduler.advance(1s);
        controller->recognize({OCRInput::File{QStringLiteral("/a.png")}});
        EXPECT_EQ(status().tab, ShelfTab::imageToText);
        EXPECT_EQ(status().recognitionPhase, QStringLiteral("loading"));
        recognizer.succeed(longText);
        settle();
        EXPECT_EQ(status().recognitionText, longText.join(u'\n'));
        EXPECT_EQ(status().frame.height, std::min(584.0, height - 16));
    }
    controller->activateTab(ShelfTab::screenshots);
    EXPECT_EQ(status().frame.height, usual);
    controller->activateTab(ShelfTab::imageToText);
    EXPECT_GT(status().frame.height, usual);

    controller->recognize({OCRInput::File{QStringLiteral("/b.png")}});
    settings.setImageToTextEnabled(false);
    EXPECT_TRUE(recognizer.runs.back()->isCancelled);
    EXPECT_EQ(status().tab, ShelfTab::screenshots);
    EXPECT_EQ(status().frame.height, usual);
    controller->recognize({OCRInput::File{QStringLiteral("/c.png")}});
    EXPECT_EQ(recognizer.runs.size(), 3U);
}

TEST_F(ShelfControllerTest, readsTheSelectedScreenshotAndWhatIsPasted) {
    start();
    capture();
    controller->openManually();
    pressCtrl(Qt::Key_T);
    EXPECT_TRUE(recognizer.runs.empty()) << "nothing is selected";
    const Shot shot = controller->shots().front();
    controller->session().selected = {shot.identity};
    controller->togglePreview();
    pressCtrl(Qt::Key_T);
    ASSERT_EQ(recognizer.runs.size(), 1U);
    EXPECT_EQ(recognizer.runs[0]->input, (OCRInput{OCRInput::File{shot.location}}));
    parts.pasteboard.offered.setText(QStringLiteral("no image"));
    pressCtrl(Qt::Key_V);
    EXPECT_EQ(recognizer.runs.size(), 1U);
    parts.pasteboard.offered.setData(QStringLiteral("image/png"), pictureBytes("png"));
    pressCtrl(Qt::Key_V);
    ASSERT_EQ(recognizer.runs.size(), 2U);
    EXPECT_TRUE(recognizer.runs[0]->isCancelled);
    EXPECT_EQ(status().tab, ShelfTab::imageToText);
    EXPECT_TRUE(status().tray.empty());
}

TEST_F(ShelfControllerTest, copiesTheTextAndOpensItsLinks) {
    start();
    controller->openManually();
    controller->recognize({OCRInput::File{QStringLiteral("/a.png")}});
    recognizer.succeed({QStringLiteral("see https://example.org/a%20b")});
    settle();
    const int writes = parts.pasteboard.writes;
    pressCtrl(Qt::Key_C);
    EXPECT_EQ(parts.pasteboard.writes, writes) << "nothing is selected";
    recognitionButton(QStringLiteral("Copy"))->click();
    ASSERT_EQ(parts.pasteboard.items.size(), 1U);
    EXPECT_EQ(parts.pasteboard.items[0].data, "see https://example.org/a%20b");
    EXPECT_NE(recognitionButton(QStringLiteral("Copied")), nullptr);
    const QUrl link(QStringLiteral("https://example.org/a%20b"));
    Q_EMIT recognitionPanel()->linkCopyRequested(link);
    EXPECT_EQ(parts.pasteboard.items[0].data, "https://example.org/a%20b");

    Q_EMIT recognitionPanel()->linkActivated(link);
    EXPECT_EQ(workspace.openedLink, link);
    EXPECT_FALSE(status().expanded) << "it lies above what opens";
    workspace.openRefusal = failure({QStringLiteral("Test"), 1, QStringLiteral("refused"), {}});
    parts.pasteboard.refuses = true;
    Q_EMIT recognitionPanel()->linkActivated(link);
    Q_EMIT recognitionPanel()->copyRequested();
    EXPECT_EQ(errors,
              (QStringList{QStringLiteral("Couldn’t Open Link"), QStringLiteral("Couldn’t Copy Text")}));
}

TEST_F(ShelfControllerTest, readsAnImageThatIsChosen) {
    start();
    std::optional<QString> chosen;
    controller->askForImage = [&](const QString &) { return chosen; };
    controller->openManually();
    controller->activateTab(ShelfTab::imageToText);
    auto *const choose = recognitionButton(QStringLiteral("Choose Image"));
    ASSERT_NE(choose, nullptr);
    choose->click();
    EXPECT_TRUE(recognizer.runs.empty());
    chosen = QStringLiteral("/a.png");
    choose->click();
    ASSERT_EQ(recognizer.runs.size(), 1U);
    EXPECT_EQ(recognizer.runs[0]->input, (OCRInput{OCRInput::File{*chosen}}));
    EXPECT_TRUE(status().expanded);
}

TEST_F(ShelfControllerTest, whatIsTodaysIsYesterdaysAfterMidnight) {
    capture();
    start();
    ASSERT_EQ(status().sections.size(), 1U);
    EXPECT_EQ(status().sections[0].title, QStringLiteral("Today"));
    movePointer(atTopEdge);
    scheduler.advance(24h);
    EXPECT_EQ(status().sections[0].title, QStringLiteral("Yesterday"));
}

TEST_F(ShelfControllerTest, theOpenShelfMovesToARemainingDisplay) {
    settings.setDisplayPreference(DisplayPreference::all);
    displays.screens.push_back(
        {.identifier = 2, .name = QStringLiteral("second"), .frame = {1280, 0, 1000, 800}});
    start();
    EXPECT_EQ(hotZones.count, 2);
    movePointer({1780, 2});
    EXPECT_EQ(status().display, QStringLiteral("second"));

    displays.set({displays.screens.front()});
    scheduler.advance(1s);
    EXPECT_TRUE(status().expanded);
    EXPECT_EQ(status().display, QStringLiteral("first"));
    EXPECT_EQ(hotZones.count, 1);

    displays.set({});
    scheduler.advance(1s);
    EXPECT_EQ(hotZones.count, 0);
    EXPECT_TRUE(controller->status().display.isEmpty());
}

TEST_F(ShelfControllerTest, aFolderThatWasGoneAtTheStartIsFoundWhenItIsBack) {
    ASSERT_TRUE(settings.grantScreenshotsFolder(folder, false, false));
    ASSERT_TRUE(QDir(folder).removeRecursively());
    settings.refreshFolderAccess();
    AppSettings restarted(defaults, FolderPreferences(), ScreenshotFolderAccess(bookmarks, files, folders),
                          functions());
    start(restarted);
    EXPECT_EQ(status().folderState, ScreenshotFolderState::missing);

    QDir().mkpath(folder);
    scheduler.advance(10s);
    settle();
    EXPECT_EQ(status().folderState, ScreenshotFolderState::ready);
    capture();
    EXPECT_EQ(status().screenshotCount, 1);
}

TEST_F(ShelfControllerTest, aFolderThatWasMadeAnewIsFollowedLikeTheFirst) {
    start();
    ASSERT_TRUE(QDir(folder).removeRecursively());
    events.sendDirectory(FolderEvents::remove);
    settle();
    EXPECT_EQ(status().folderState, ScreenshotFolderState::missing);
    EXPECT_EQ(status().notificationText, QStringLiteral("Screenshots folder unavailable"));
    QDir().mkpath(folder);
    scheduler.advance(10s);
    settle();
    EXPECT_EQ(status().folderState, ScreenshotFolderState::ready);

    const QString renamed = root.filePath(QStringLiteral("Renamed"));
    ASSERT_TRUE(QDir().rename(folder, renamed));
    destination = ScreenshotDestination::toFolder(renamed);
    events.sendDirectory(FolderEvents::rename);
    settle();
    EXPECT_EQ(status().folder, renamed);
    EXPECT_EQ(status().folderState, ScreenshotFolderState::ready);
}

TEST_F(ShelfControllerTest, aPressInHoverModeOpensWhatHoveringClosesAgain) {
    start();
    hotZones.press();
    EXPECT_TRUE(status().expanded);
    movePointer(atTopEdge);
    movePointer(farAway);
    EXPECT_FALSE(status().expanded);

    settings.setActivationMode(ActivationMode::click);
    for (const bool expanded : {true, false}) {
        input.send(InputMonitor::Kind::leftDown, atTopEdge);
        hotZones.press();
        EXPECT_EQ(status().expanded, expanded) << "each click turns it round";
    }
}

TEST_F(ShelfControllerTest, theShortcutOpensForGoodAndCloses) {
    start();
    hotKeys.press();
    EXPECT_FALSE(status().expanded) << "it is off";
    settings.setShortcutEnabled(true);
    hotKeys.press();
    movePointer(atTopEdge);
    movePointer(farAway);
    EXPECT_TRUE(status().expanded);
    hotKeys.press();
    EXPECT_FALSE(status().expanded);
    EXPECT_TRUE(status().isShortcutEnabled);
    EXPECT_EQ(status().shortcutTitle, QStringLiteral("⇧⌘W"));

    controller->stop();
    EXPECT_TRUE(hotKeys.registered().empty());
}

TEST_F(ShelfControllerTest, withoutADisplayNothingOpensAndHoveringWorksOnceThereIsOne) {
    start();
    const auto screens = displays.screens;
    displays.set({});
    controller->openManually();
    EXPECT_FALSE(status().expanded);
    displays.screens = screens;
    controller->openManually();
    EXPECT_TRUE(status().expanded) << "a display that has just come";
    controller->collapse();
    movePointer(atTopEdge);
    EXPECT_TRUE(status().expanded);
}

TEST_F(ShelfControllerTest, whereThingsMoveTheFirstFrameOfOpeningShowsAPartOfThePanel) {
    start();
    QApplication::setStyle(QStringLiteral("Fusion"));
    controller->openManually();
    EXPECT_GT(status().frame.height, 20);
    EXPECT_LT(status().frame.height, 100);
}

TEST_F(ShelfControllerTest, nothingIsLeftOnceItIsStopped) {
    start();
    capture();
    controller->stop();
    EXPECT_EQ(hotZones.count, 0);
    EXPECT_EQ(workspace.observerCount(), 0);
    EXPECT_FALSE(input.isObserved());
    EXPECT_EQ(events.directoryCount(), 0);
    EXPECT_EQ(scheduler.pendingCount(), 0);
}
