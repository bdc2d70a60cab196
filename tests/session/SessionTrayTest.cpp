#include "session/LiveSession.h"

#include <QUrl>

using namespace std::chrono_literals;
using namespace tembra;

TEST(SessionTrayTest, theTrayWaitsForARemovalAndAnUndoBringsItsFileBackInSight) {
    LiveSession live;
    const QStringList names = live.writeOld(2);
    live.start();
    EXPECT_EQ(live.parts.workspace.observerCount(), 1) << "the tray is watched with the folder";
    ClipboardStore &tray = live.session.clipboard;
    tray.add(tray.importGeneration(), {live.path(names[0]), live.path(names[1])});
    live.session.moveScreenshotToTrash = [&](const QString &file, const Trash::Guard &guard) {
        auto moved = live.parts.trash.moveToTrash(file, guard);
        tray.reconcileFiles();
        EXPECT_EQ(live.tray(), names) << "in the middle of the removal";
        return moved;
    };
    live.session.removeScreenshots(live.shots({names[0]}));
    EXPECT_EQ(live.tray(), QStringList{names[1]});

    // What happened meanwhile is seen afterwards.
    ASSERT_TRUE(QFile::remove(live.path(names[1])));
    ASSERT_TRUE(live.session.undo());
    EXPECT_EQ(live.tray(), names);
    live.parts.scheduler.advance(150ms);
    EXPECT_EQ(live.tray(), QStringList{names[0]});
    EXPECT_EQ(tray.entries().front().lastKnownPath, live.path(names[0]));

    live.session.stopWatcher();
    EXPECT_EQ(live.parts.workspace.observerCount(), 0);
}

TEST(SessionTrayTest, filesAreTakenOnlyWhileTheTrayIsSwitchedOn) {
    LiveSession live;
    const QString file = live.path(live.writeOld(1).constFirst());
    QMimeData pasteboard;
    pasteboard.setUrls({QUrl::fromLocalFile(file)});
    for (const bool isOn : {false, true}) {
        live.settings.setFileTrayEnabled(isOn);
        EXPECT_EQ(live.session.clipboard.receive(pasteboard), isOn);
        EXPECT_EQ(live.tray().size(), isOn ? 1 : 0);
    }
}

TEST(SessionTrayTest, whatIsTakenOutOfTheTrayComesBackByUndoAndGoesAgainByRedo) {
    LiveSession live;
    const QStringList names = live.writeOld(3);
    ClipboardStore &tray = live.session.clipboard;
    tray.add(tray.importGeneration(), {live.path(names[0]), live.path(names[1]), live.path(names[2])});
    const QSet<QUuid> middle{tray.order()[1]};
    tray.select(middle);
    tray.removeSelected();
    tray.removeSelected();
    tray.clear();
    tray.clear();
    EXPECT_EQ(live.session.screenshotUndoManager.undoNames(),
              (QStringList{QStringLiteral("Clear File Tray"), QStringLiteral("Remove from File Tray")}))
        << "where nothing is taken out there is nothing to undo";

    ASSERT_TRUE(live.session.undo());
    EXPECT_EQ(live.tray(), (QStringList{names[0], names[2]}));
    ASSERT_TRUE(live.session.undo());
    EXPECT_EQ(live.tray(), names);
    EXPECT_EQ(tray.selectedIDs(), middle);
    ASSERT_TRUE(live.session.redo());
    ASSERT_TRUE(live.session.redo());
    EXPECT_EQ(live.tray(), QStringList());

    // What happened meanwhile is seen afterwards, and what came since stays.
    tray.add(tray.importGeneration(), {live.path(names[1])});
    ASSERT_TRUE(QFile::remove(live.path(names[0])));
    ASSERT_TRUE(live.session.undo());
    live.parts.scheduler.advance(150ms);
    EXPECT_EQ(live.tray(), (QStringList{names[1], names[2]}));
}
