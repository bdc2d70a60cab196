#include "support/Files.h"
#include "tray/Tray.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

class ClipboardFollowingTest : public testing::Test {
protected:
    ClipboardFollowingTest() {
        for (const char *folder : {"a/deep", "far/away/from/there", "Trash/files"})
            EXPECT_TRUE(QDir().mkpath(tray.path(folder)));
        tray.store.startMonitoring();
        tray.settle();
    }
    static void move(const QString &from, const QString &to) { ASSERT_TRUE(QDir().rename(from, to)); }
    // Lets events arrive, and what they lead to happen, until the tray shows this.
    bool comesToShow(const QStringList &expected) {
        return eventually([&] {
            tray.scheduler.advance(150ms);
            tray.settle();
            return tray.shown() == expected;
        });
    }

    Tray tray;
};

} // namespace

TEST_F(ClipboardFollowingTest, filesAndFoldersAreFollowedAnywhereOnTheirVolume) {
    const QString file = writeFile(tray.path("a/file"));
    const QString folder = tray.path("a/deep");
    tray.add({file, folder});
    const QString moved = tray.path("far/away/from/there/renamed\n");
    move(file, moved);
    EXPECT_TRUE(comesToShow({moved, folder}));
    move(folder, tray.path("far/away/deeper"));
    EXPECT_TRUE(comesToShow({moved, tray.path("far/away/deeper")}));
    EXPECT_EQ(tray.store.entries().front().originalPath, file);

    // Nobody tells of the folders above, until the program is looked at.
    move(tray.path("far"), tray.path("near"));
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(comesToShow({tray.path("near/away/from/there/renamed\n"), tray.path("near/away/deeper")}));

    ASSERT_TRUE(QFile::remove(tray.path("near/away/from/there/renamed\n")));
    EXPECT_TRUE(comesToShow({tray.path("near/away/deeper")}));
    ASSERT_TRUE(QDir().rmdir(tray.path("near/away/deeper")));
    EXPECT_TRUE(comesToShow({}));
}

TEST_F(ClipboardFollowingTest, whatTakesAFilesPlaceIsFollowedFromThenOn) {
    const QString file = writeFile(tray.path("a/file"));
    tray.add({file});
    const auto before = tray.store.entries().front();
    // As editors save.
    move(file, tray.path("a/file~"));
    writeFile(tray.path("a/new"));
    move(tray.path("a/new"), file);
    ASSERT_TRUE(QFile::remove(tray.path("a/file~")));
    EXPECT_TRUE(eventually([&] {
        tray.scheduler.advance(150ms);
        return !(tray.store.entries().front().identity == before.identity);
    }));
    EXPECT_EQ(tray.shown(), QStringList{file});
    EXPECT_EQ(tray.store.entries().front().id, before.id);
    move(file, tray.path("far/away/from/there/file"));
    EXPECT_TRUE(comesToShow({tray.path("far/away/from/there/file")}));
}

TEST_F(ClipboardFollowingTest, whatIsMovedToTheTrashGoesButWhatWasAddedFromThereStays) {
    const QString file = writeFile(tray.path("a/file"));
    const QString trashed = writeFile(tray.path("Trash/files/old"));
    tray.add({file, trashed});
    move(file, tray.path("Trash/files/file"));
    EXPECT_TRUE(comesToShow({trashed}));
}

TEST_F(ClipboardFollowingTest, whatIsNotHeldIsFoundByItsIdentity) {
    QStringList paths;
    for (int i = 0; i < LinuxFileReferences::mostHeld + 3; ++i)
        paths += writeFile(tray.path("a/file%1").arg(i));
    tray.add(paths);
    ASSERT_FALSE(tray.store.entries().back().reference);
    const QString near = tray.path("a/near");
    const QString far = tray.path("a/deep/far");
    const QString last = paths.takeLast();
    move(paths.takeLast(), near);
    move(paths.takeLast(), far);
    ASSERT_TRUE(QFile::remove(last));
    EXPECT_TRUE(comesToShow(paths + QStringList{far, near}));

    // A place becomes free.
    tray.store.clear();
    tray.add({near});
    EXPECT_TRUE(tray.store.entries().back().reference);
}

TEST_F(ClipboardFollowingTest, filesOfAnotherMachineAreAskedForOnTheQueueAlone) {
    tray.volumes.areLocal = false;
    const QString file = writeFile(tray.path("a/file"));
    const QString other = writeFile(tray.path("a/other"));
    tray.add({file, other});
    tray.settle();
    ASSERT_TRUE(QFile::remove(file));
    const QString moved = tray.path("far/other");
    move(other, moved);
    tray.store.reconcileFiles();
    EXPECT_EQ(tray.shown(), (QStringList{file, other})) << "nobody has been asked yet";
    tray.settle();
    EXPECT_EQ(tray.shown(), QStringList{moved});
}

TEST_F(ClipboardFollowingTest, aBurstOfEventsIsOneReconciliation) {
    const QString file = writeFile(tray.path("a/file"));
    tray.add({file, writeFile(tray.path("a/other"))});
    int inspections = 0;
    const auto inspect = tray.store.inspectEntry;
    tray.store.inspectEntry = [&](const ClipboardEntry &entry) {
        ++inspections;
        return inspect(entry);
    };
    for (int i = 0; i < 10; ++i) {
        move(file, tray.path("a/moved"));
        move(tray.path("a/moved"), file);
        QCoreApplication::processEvents();
        tray.scheduler.advance(14ms);
    }
    EXPECT_EQ(inspections, 0);
    tray.scheduler.advance(149ms);
    tray.scheduler.advance(1ms);
    EXPECT_EQ(inspections, 2);

    // Others in the folder are nobody's business.
    tray.changes = 0;
    writeFile(tray.path("a/stranger"));
    QCoreApplication::processEvents();
    EXPECT_EQ(tray.scheduler.pendingCount(), 0);
    for (const auto event : {Workspace::Event::didMount, Workspace::Event::didUnmount,
                             Workspace::Event::didWake, Workspace::Event::willSleep})
        tray.workspace.raise(event);
    tray.scheduler.advance(150ms);
    EXPECT_EQ(inspections, 4);
    EXPECT_EQ(tray.changes, 0) << "nothing is different";

    tray.store.stopMonitoring();
    ASSERT_TRUE(QFile::remove(file));
    tray.workspace.raise(Workspace::Event::didWake);
    QCoreApplication::processEvents();
    tray.scheduler.advance(1s);
    EXPECT_EQ(inspections, 4);
}

TEST_F(ClipboardFollowingTest, doesNothingWhileItIsToWait) {
    const QString file = writeFile(tray.path("a/file"));
    tray.add({file});
    tray.store.shouldDeferReconciliation = [] { return true; };
    ASSERT_TRUE(QFile::remove(file));
    tray.reconcile();
    EXPECT_EQ(tray.shown(), QStringList{file});
    tray.store.shouldDeferReconciliation = [] { return false; };
    tray.reconcile();
    EXPECT_TRUE(tray.shown().isEmpty());
}

TEST_F(ClipboardFollowingTest, aVerdictDropsGreysOrKeepsAnEntryAndItsSelection) {
    const QStringList paths{writeFile(tray.path("a/1")), writeFile(tray.path("a/2")),
                            writeFile(tray.path("a/3"))};
    tray.add(paths);
    const QList<QUuid> ids = tray.store.order();
    tray.store.select({ids[0], ids[1]});
    QHash<QUuid, ClipboardFileState> verdicts{{ids[0], ClipboardFileState::removed},
                                              {ids[1], ClipboardFileState::unavailable}};
    tray.store.inspectEntry = [&](const ClipboardEntry &entry) {
        return verdicts.value(entry.id, ClipboardFileState::available);
    };
    tray.changes = 0;
    tray.reconcile();
    EXPECT_EQ(tray.shown(), (QStringList{u'-' + paths[1], paths[2]}));
    EXPECT_EQ(tray.store.selectedIDs(), QSet<QUuid>{ids[1]});
    verdicts.clear();
    tray.reconcile();
    EXPECT_EQ(tray.shown(), (QStringList{paths[1], paths[2]}));
    EXPECT_EQ(tray.changes, 2);
    tray.store.removeSelected();
    EXPECT_EQ(tray.shown(), QStringList{paths[2]});
    EXPECT_TRUE(QFileInfo::exists(paths[1]));
}
