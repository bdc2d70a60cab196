#include "watching/WatchedFolder.h"

using namespace std::chrono_literals;
using namespace tembra;

namespace {

using FileWatcherServiceTest = WatchedFolder;

const QString firstName = QStringLiteral("Screenshot_20261121_101501.png");
const QString secondName = QStringLiteral("Screenshot_20261121_101502.png");
const QString thirdName = QStringLiteral("Screenshot_20261121_101503.png");

} // namespace

TEST_F(FileWatcherServiceTest, anyNumberOfEventsBecomesOneScanAfter80Milliseconds) {
    start();
    events.sendDirectory(FolderEvents::write);
    scheduler.advance(50ms);
    events.sendTree(
        {{path(firstName), TreeEvent::itemIsFile, 1}, {path(secondName), TreeEvent::itemIsFile, 2}});
    events.sendDirectory(FolderEvents::attrib | FolderEvents::extend);
    scheduler.advance(29ms);
    EXPECT_EQ(queue.count(), 0);
    scheduler.advance(1ms);
    EXPECT_EQ(queue.count(), 1);
    EXPECT_EQ(pass(1min), 1);
}

TEST_F(FileWatcherServiceTest, aScanAfterAnEditorWriteWaits350MillisecondsWhateverHappensMeanwhile) {
    start();
    events.sendDirectory(FolderEvents::write);
    scheduler.advance(10ms);
    service->requestScanAfterEditorWrite();
    scheduler.advance(90ms);
    events.sendDirectory(FolderEvents::write);
    scheduler.advance(259ms);
    EXPECT_EQ(queue.count(), 0);
    scheduler.advance(1ms);
    EXPECT_EQ(queue.count(), 1);
    EXPECT_EQ(pass(1min), 1);

    service->requestScanAfterEditorWrite();
    service->scanNow();
    EXPECT_EQ(queue.count(), 1) << "an immediate scan does not wait";
}

TEST_F(FileWatcherServiceTest, whatIsAskedForDuringAScanIsAnsweredByOneMore) {
    start();
    service->scanNow();
    EXPECT_EQ(queue.count(), 1);
    write(firstName);
    service->scanNow();
    events.sendDirectory(FolderEvents::write);
    service->requestScanAfterEditorWrite();
    scheduler.advance(10s);
    EXPECT_EQ(queue.count(), 1);
    finishScan();
    EXPECT_EQ(queue.count(), 0);
    EXPECT_EQ(pass(1min), 1);
}

TEST_F(FileWatcherServiceTest, comesBackAfterGrowingDelaysAndBeginsAnewOnceItWasThere) {
    ASSERT_TRUE(QDir().rmdir(folder));
    service->start(shelf);
    for (int round = 0; round < 2; ++round) {
        for (const auto delay : {1s, 2s, 4s, 8s, 16s, 32s, 60s, 60s}) {
            const int attempts = events.attempts;
            pass(delay - 1ms);
            EXPECT_EQ(events.attempts, attempts) << delay.count();
            pass(1ms);
            EXPECT_EQ(events.attempts, attempts + 1) << delay.count();
        }
        EXPECT_EQ(events.directoryCount(), 0);
        EXPECT_EQ(shelf.errorText, QStringLiteral("Folder access needs to be restored"));

        ASSERT_TRUE(QDir().mkpath(folder));
        write(firstName);
        pass(1min);
        EXPECT_EQ(shown(), QStringList(firstName));
        EXPECT_EQ(shelf.errorText, std::nullopt);
        EXPECT_EQ(events.directoryCount(), 1);
        EXPECT_EQ(scheduler.pendingCount(), 0);

        ASSERT_TRUE(QDir(folder).removeRecursively());
        events.sendDirectory(FolderEvents::remove);
        EXPECT_EQ(events.directoryCount() + events.treeCount(), 0);
    }
}

TEST_F(FileWatcherServiceTest, watchesWhatStandsInThePlaceOfAFolderThatWentAway) {
    for (const auto event : {FolderEvents::remove, FolderEvents::rename, FolderEvents::revoke}) {
        start();
        ASSERT_TRUE(QDir().rename(folder, folder + QString::number(event)) && QDir().mkpath(folder));
        events.sendDirectory(event | FolderEvents::attrib);
        events.sendDirectory(event);
        EXPECT_EQ(events.directoryCount() + events.treeCount(), 0) << event;
        pass(1s);
        EXPECT_EQ(events.directoryCount(), 1) << event;
        EXPECT_EQ(events.treeCount(), 1) << event;
        write(firstName);
        events.sendDirectory(FolderEvents::write);
        EXPECT_EQ(pass(80ms), 1) << event;
        EXPECT_EQ(shown(), QStringList(firstName)) << event;
    }
}

TEST_F(FileWatcherServiceTest, anErrorTakesThePlaceOfTheShotsUntilTheFolderIsBack) {
    write(firstName);
    start();
    EXPECT_EQ(changes, 1);
    ASSERT_TRUE(QDir(folder).removeRecursively());
    service->scanNow();
    pass(10s);
    EXPECT_TRUE(shelf.shots.empty());
    EXPECT_GT(reports, 3);
    EXPECT_EQ(changes, 2) << "the same error is one change";
    ASSERT_TRUE(QDir().mkpath(folder));
    pass(1min);
    EXPECT_EQ(shelf.errorText, std::nullopt);
    EXPECT_EQ(changes, 3) << "an empty folder without an error is a change";
}

TEST_F(FileWatcherServiceTest, stoppingDropsWhatIsUnderWay) {
    write(firstName);
    service->start(shelf);
    scheduler.advance(80ms);
    ASSERT_EQ(queue.count(), 1);
    service->stop();
    finishScan();
    EXPECT_EQ(reports, 0);

    service->start(shelf);
    scheduler.advance(80ms);
    queue.runAll();
    service->stop();
    EXPECT_EQ(pass(1min), 0);
    EXPECT_EQ(reports, 0);
    EXPECT_EQ(events.directoryCount() + events.treeCount(), 0);
    EXPECT_FALSE(service->isRunning());
    service->scanNow();
    service->requestScanAfterEditorWrite();
    service->receiveTreeEvents({{folder, TreeEvent::mustScanSubdirectories, 1}});
    EXPECT_EQ(pass(1min), 0);
}

TEST_F(FileWatcherServiceTest, aScanOfTheFormerFolderDoesNotReachTheNewOne) {
    write(firstName);
    service->start(shelf);
    scheduler.advance(80ms);
    FolderShelf other;
    other.url = home.filePath(QStringLiteral("Other"));
    ASSERT_TRUE(QDir().mkpath(*other.url));
    service->start(other);
    EXPECT_EQ(pass(80ms), 2);
    EXPECT_TRUE(other.shots.empty());
    EXPECT_TRUE(other.hasCompletedInitialScan);
    EXPECT_FALSE(shelf.hasCompletedInitialScan);
    EXPECT_EQ(events.directoryCount(), 1);
}

TEST_F(FileWatcherServiceTest, aCallbackMayStopOrEndTheWatcher) {
    start();
    write(firstName);
    service->onChange = [this](FolderShelf &, bool, int) { service->stop(); };
    service->scanNow();
    finishScan();
    EXPECT_TRUE(announced.isEmpty());

    service->onChange = {};
    start();
    service->onChange = [this](FolderShelf &, bool, int) { service.reset(); };
    events.sendDirectory(FolderEvents::remove);
    pass(1min);
    EXPECT_EQ(service, nullptr);
}

TEST_F(FileWatcherServiceTest, aNewCaptureIsAnnouncedOnceAndNoneIsAtTheFirstScan) {
    write(firstName);
    start();
    EXPECT_EQ(shown(), QStringList(firstName));
    EXPECT_TRUE(announced.isEmpty());

    scheduler.advance(1s);
    write(secondName);
    scheduler.advance(1s);
    write(thirdName);
    service->scanNow();
    finishScan();
    EXPECT_EQ(announced, QStringList({thirdName, secondName}));
    EXPECT_EQ(announcedCount, 2);
    EXPECT_EQ(shown(), QStringList({thirdName, secondName, firstName}));

    announced.clear();
    service->scanNow();
    pass(1min);
    EXPECT_TRUE(announced.isEmpty());
    EXPECT_EQ(changes, 2);
}

TEST_F(FileWatcherServiceTest, whatWasRenamedEditedOrMovedHereIsNotNew) {
    const QByteArray whole = pictureBytes("png");
    const auto editSlowly = [&] {
        write(firstName, whole.first(100));
        service->scanNow();
        finishScan();
        EXPECT_TRUE(shown().isEmpty());
        write(firstName, whole);
    };
    const struct {
        const char *what;
        std::function<void()> act;
        QString shown;
    } cases[]{
        {"renamed", [&] { QDir(folder).rename(firstName, secondName); }, secondName},
        {"written in place",
         [&] {
             write(firstName, pictureBytes("png", {9, 9}));
         },
         firstName},
        {"written in place slowly", editSlowly, firstName},
        {"replaced",
         [&] {
             write(secondName, whole);
             ASSERT_EQ(::rename(qPrintable(path(secondName)), qPrintable(path(firstName))), 0);
         },
         firstName},
        {"moved here",
         [&] {
             QFile::remove(path(firstName));
             setModified(write(thirdName), now() - 3min);
         },
         thirdName},
    };
    for (const auto &[what, act, expected] : cases) {
        ASSERT_TRUE(QDir(folder).removeRecursively() && QDir().mkpath(folder));
        shelf.hasCompletedInitialScan = false;
        announced.clear();
        write(firstName);
        start();
        act();
        service->scanNow();
        pass(1s);
        EXPECT_EQ(shown(), QStringList(expected)) << what;
        EXPECT_TRUE(announced.isEmpty()) << what;
    }
}

TEST_F(FileWatcherServiceTest, aDismissedCaptureIsNeverAnnounced) {
    start();
    write(firstName);
    service->scanNow();
    finishScan();
    ASSERT_EQ(shown(), QStringList(firstName));
    announced.clear();
    dismissed.insert(shelf.shots.front().stamp);
    service->scanNow();
    finishScan();
    EXPECT_TRUE(shown().isEmpty());

    customPrefix = QStringLiteral("Bild"); // everything is judged anew
    service->scanNow();
    finishScan();
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_TRUE(announced.isEmpty());
}

TEST_F(FileWatcherServiceTest, aTruncatedPictureIsLookedAtAgainUntilItIsWhole) {
    const QByteArray whole = pictureBytes("png");
    write(firstName, whole.first(whole.size() / 2));
    start();
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_EQ(pass(329ms), 0);
    EXPECT_EQ(pass(1ms), 1);
    write(firstName, whole); // no event tells of it
    EXPECT_EQ(pass(330ms), 1);
    EXPECT_EQ(shown(), QStringList(firstName));
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST_F(FileWatcherServiceTest, lookingAgainEndsWhenNothingChangesAndBeginsAnewWhenItDoes) {
    write(firstName, pictureBytes("png").first(60));
    write(QStringLiteral("2026-11-21 10-15-22.mp4"), "no video");
    start();
    EXPECT_LE(pass(1h), 3 * FolderReader::retryBudget);
    EXPECT_EQ(scheduler.pendingCount(), 0);
    write(firstName, pictureBytes("png").first(70));
    events.sendDirectory(FolderEvents::write);
    EXPECT_GT(pass(1min), 2);
}

TEST_F(FileWatcherServiceTest, withoutATreeTheDirectoryAloneLeadsToScans) {
    events.givesTrees = false;
    start();
    write(firstName);
    events.sendDirectory(FolderEvents::write);
    EXPECT_EQ(pass(1min), 1);
    EXPECT_EQ(shown(), QStringList(firstName));
}
