#include "watching/WatchedFolder.h"

using namespace std::chrono_literals;
using namespace tembra;

namespace {

using FileWatcherEventsTest = WatchedFolder;
using Flag = TreeEvent::Flag;

const QString picture = QStringLiteral("Screenshot_20261121_101501.png");
const QString recording = QStringLiteral("Screencast_20261121_101501.mp4");

} // namespace

TEST_F(FileWatcherEventsTest, eachKindOfTreeEventLeadsToAScanInItsTime) {
    enum When { never, soon, afterAQuietSecond };
    const QString below = QStringLiteral("below/");
    const struct {
        const char *what;
        QString path;
        std::uint32_t flags;
        When alone;
        When withSubfolders;
    } cases[]{
        {"a new picture", picture, Flag::itemIsFile | Flag::itemCreated, soon, soon},
        {"a picture below", below + picture, Flag::itemIsFile | Flag::itemModified, never, soon},
        {"any other file", QStringLiteral("notes.txt"), Flag::itemIsFile, soon, soon},
        {"a new recording", recording, Flag::itemIsFile | Flag::itemCreated, afterAQuietSecond,
         afterAQuietSecond},
        {"a recording of this platform", QStringLiteral("a.WEBM"), Flag::itemIsFile, afterAQuietSecond,
         afterAQuietSecond},
        {"a recording below", below + recording, Flag::itemIsFile, never, afterAQuietSecond},
        {"a renamed recording", recording, Flag::itemIsFile | Flag::itemRenamed, soon, soon},
        {"a hard-linked recording", recording, Flag::itemIsFile | Flag::itemIsHardlink, soon, soon},
        {"a link to a recording", recording, Flag::itemIsSymlink, soon, soon},
        {"a folder named like a recording", recording, Flag::itemIsDirectory, soon, soon},
        {"something of no kind", recording, Flag::itemCreated, soon, soon},
        {"a folder below", below + QStringLiteral("c"), Flag::itemIsDirectory, never, soon},
        {"history done below", below + QStringLiteral("c"), Flag::historyDone, never, soon},
        {"must scan", below + QStringLiteral("c"), Flag::mustScanSubdirectories, soon, soon},
        {"dropped by the user", below + recording, Flag::userDropped | Flag::itemIsFile, soon, soon},
        {"dropped by the kernel", below + recording, Flag::kernelDropped | Flag::itemIsFile, soon, soon},
        {"ids wrapped", below + recording, Flag::eventIdsWrapped, soon, soon},
        {"root changed", QString(), Flag::rootChanged, soon, soon},
        {"mount", below + recording, Flag::mount, soon, soon},
        {"unmount", below + recording, Flag::unmount, soon, soon},
    };
    ASSERT_TRUE(QDir(folder).mkdir(QStringLiteral("below")));
    std::uint64_t id = 0;
    for (const bool subfolders : {false, true}) {
        includesSubfolders = subfolders;
        start();
        EXPECT_EQ(events.isLastTreeRecursive, subfolders);
        for (const auto &[what, path, flags, alone, withSubfolders] : cases) {
            const When expected = subfolders ? withSubfolders : alone;
            events.sendTree({{folder + u'/' + path, flags, ++id}});
            EXPECT_EQ(pass(79ms), 0) << what << subfolders;
            EXPECT_EQ(pass(1ms), expected == soon ? 1 : 0) << what << subfolders;
            EXPECT_EQ(pass(1min), expected == afterAQuietSecond ? 1 : 0) << what << subfolders;
        }
    }
}

TEST_F(FileWatcherEventsTest, aFolderReachedThroughALinkIsTheWatchedOne) {
    const QString link = home.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(folder, link));
    shelf.url = link;
    start();
    events.sendTree({{folder + u'/' + picture, Flag::itemIsFile, 1}});
    EXPECT_EQ(pass(80ms), 1);
}

TEST_F(FileWatcherEventsTest, whileARecordingGrowsItsScanIsPutOff) {
    start();
    for (std::uint64_t id = 1; id < 20; ++id) {
        events.sendTree({{path(recording), Flag::itemIsFile | Flag::itemModified, id}});
        EXPECT_EQ(pass(900ms), 0) << id;
    }
    EXPECT_EQ(pass(180ms), 1);
}

TEST_F(FileWatcherEventsTest, whatAScanHasSeenNeedsNoOther) {
    const auto event = [this](std::uint64_t id, std::uint32_t flags = Flag::itemIsFile) {
        return TreeEvent{path(picture), flags, id};
    };
    start();
    events.sendTree({event(4), event(5)});
    EXPECT_EQ(pass(1min), 1);
    events.sendTree({event(3), event(5)});
    EXPECT_EQ(pass(1min), 0) << "seen already";
    events.sendTree({event(5, Flag::mustScanSubdirectories)});
    EXPECT_EQ(pass(1min), 1) << "not everything was told";

    events.sendTree({event(6)});
    scheduler.advance(80ms);
    ASSERT_EQ(queue.count(), 1);
    events.sendTree({event(7)});
    EXPECT_EQ(pass(1min), 2) << "the second came when the scan was under way";
    events.sendTree({event(7)});
    EXPECT_EQ(pass(1min), 0);
}

TEST_F(FileWatcherEventsTest, idsThatBeginAnewCountAgain) {
    const auto event = [this](std::uint64_t id, std::uint32_t flags = Flag::itemIsFile) {
        return TreeEvent{path(picture), flags, id};
    };
    start();
    events.sendTree({event(1000)});
    EXPECT_EQ(pass(1min), 1);
    events.sendTree({event(1, Flag::eventIdsWrapped)});
    EXPECT_EQ(pass(1min), 1);
    events.sendTree({event(2)});
    EXPECT_EQ(pass(1min), 1);

    // They begin anew while a scan is under way that knows the old ones, and the next is under way when one
    // more comes.
    events.sendTree({event(1001)});
    scheduler.advance(80ms);
    ASSERT_EQ(queue.count(), 1);
    events.sendTree({event(1, Flag::eventIdsWrapped)});
    finishScan();
    scheduler.advance(80ms);
    ASSERT_EQ(queue.count(), 1);
    events.sendTree({event(2)});
    EXPECT_EQ(pass(1min), 2);
}

TEST_F(FileWatcherEventsTest, aScanThatFailedHasSeenNothing) {
    start();
    ASSERT_TRUE(QDir().rename(folder, folder + u'2'));
    events.sendTree({{path(picture), Flag::itemIsFile, 5}});
    pass(80ms);
    ASSERT_TRUE(shelf.errorText);
    ASSERT_TRUE(QDir().rename(folder + u'2', folder));
    pass(1min);
    ASSERT_FALSE(shelf.errorText);
    events.sendTree({{path(picture), Flag::itemIsFile, 5}});
    EXPECT_EQ(pass(1min), 1);
}
