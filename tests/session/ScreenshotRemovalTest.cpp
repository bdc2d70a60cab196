#include "session/LiveSession.h"
#include "support/Unprivileged.h"

#include <sys/stat.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

const QString couldNotMove = QStringLiteral("Couldn’t Move to Trash");
const QString moveToTrash = QStringLiteral("Move to Trash");

void changeMode(const QString &file, mode_t mode) {
    ASSERT_EQ(::chmod(QFile::encodeName(file).constData(), mode), 0);
}

// Another file is put in its place.
void replace(const QString &file) {
    ASSERT_EQ(::rename(qPrintable(writeFile(file + u'~', "other")), qPrintable(file)), 0);
}

enum Spoiling { nothing, replaced, pinned, vanished, locked, kinds };

// Gives what the user is to read.
QString spoil(LiveSession &live, Spoiling spoiling, const QString &name) {
    const QString changed = QStringLiteral("The original file has changed.");
    switch (spoiling) {
    case replaced:
        replace(live.path(name));
        return changed;
    case vanished:
        QFile::remove(live.path(name));
        return changed;
    case locked:
        return QStringLiteral("“%1” could not be moved to the Trash: Permission denied.").arg(name);
    case pinned:
        EXPECT_TRUE(live.settings.setScreenshotsPinned({live.path(name)}, true));
        break;
    case nothing:
    case kinds:
        break;
    }
    return {};
}

class ScreenshotRemovalTest : public testing::Test, protected LiveSession {
protected:
    void remove(const QStringList &names) { session.removeScreenshots(shots(names)); }
};

} // namespace

TEST_F(ScreenshotRemovalTest, whatWasRemovedComesBackAsItWasAsOftenAsTheUserLikes) {
    for (const int count : {1, 2, 500}) {
        LiveSession live;
        const QStringList names = live.writeOld(count + 3);
        live.start();
        ASSERT_EQ(live.shown(), names);
        QStringList removed = names.mid(1, count);
        const QStringList left{names.first(), names.at(count + 1), names.last()};
        live.session.clipboard.add(0,
                                   {live.path(names.at(1)), live.path(names.last()), live.path(names.at(1))});
        const QStringList tray = live.tray();
        const auto trayIds = live.session.clipboard.order();
        live.session.clipboard.select({trayIds.at(2), trayIds.at(1)});
        live.select({names.at(0), names.at(1)});

        std::ranges::reverse(removed);
        live.session.removeScreenshots(live.shots(removed));
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(live.shown(), left);
            EXPECT_EQ(LiveSession::filesIn(live.folder), left);
            EXPECT_EQ(LiveSession::filesIn(live.trashedFiles()).size(), count);
            EXPECT_EQ(live.selected(), names.mid(0, 1));
            EXPECT_EQ(live.tray(), QStringList(names.last()));
            EXPECT_EQ(live.session.clipboard.selectedIDs(), QSet{trayIds.at(1)});
            EXPECT_EQ(live.session.screenshotUndoManager.undoNames(), QStringList(moveToTrash));
            EXPECT_EQ(live.session.screenshotUndoManager.redoNames(), QStringList());
            live.settle();

            EXPECT_TRUE(live.session.undo());
            EXPECT_EQ(live.shown(), names);
            EXPECT_EQ(LiveSession::filesIn(live.folder), names);
            EXPECT_EQ(LiveSession::filesIn(live.parts.trashFolder), QStringList());
            EXPECT_EQ(live.selected(), names.mid(0, 2));
            EXPECT_EQ(live.tray(), tray);
            EXPECT_EQ(live.session.clipboard.order(), trayIds);
            EXPECT_EQ(live.session.clipboard.selectedIDs(), (QSet{trayIds.at(2), trayIds.at(1)}));
            EXPECT_EQ(live.session.screenshotUndoManager.undoNames(), QStringList());
            EXPECT_EQ(live.session.screenshotUndoManager.redoNames(), QStringList(moveToTrash));
            live.settle();
            EXPECT_EQ(live.shown(), names);

            EXPECT_TRUE(live.session.redo());
        }
        EXPECT_TRUE(live.errors.isEmpty());
        EXPECT_FALSE(live.session.redo());
    }
}

TEST_F(ScreenshotRemovalTest, eachFileFailsByItselfAndTheOthersGo) {
    for (const int count : {2, 500}) {
        LiveSession live;
        changeMode(live.parts.home.path(), 0777);
        changeMode(live.folder, 0777);
        QDir().mkpath(live.path(QStringLiteral("locked")));
        const QStringList names = live.writeOld(count);
        for (int i = locked; i < count; i += kinds)
            ASSERT_TRUE(
                QFile::rename(live.path(names.at(i)), live.path(QStringLiteral("locked/") + names.at(i))));
        live.start();
        ASSERT_EQ(live.shown(), names);

        QStringList gone;
        QStringList lines;
        for (int i = 0; i < count; ++i) {
            const QString sentence = spoil(live, static_cast<Spoiling>(i % kinds), names.at(i));
            if (i % kinds == 0)
                gone += names.at(i);
            else if (!sentence.isEmpty())
                lines += names.at(i) + QStringLiteral(": ") + sentence;
        }
        changeMode(live.path(QStringLiteral("locked")), 0555);
        {
            const Unprivileged user;
            live.session.removeScreenshots(live.shots(names));
        }
        changeMode(live.path(QStringLiteral("locked")), 0755);
        ASSERT_EQ(live.errors.size(), 1);
        EXPECT_EQ(live.errors.first().first, couldNotMove);
        EXPECT_EQ(live.errors.first().second, lines.join(u'\n'));
        EXPECT_EQ(live.told, (QStringList{QStringLiteral("before %1").arg(count),
                                          QStringLiteral("changed %1").arg(count - gone.size()),
                                          QStringLiteral("error")}));
        EXPECT_EQ(LiveSession::filesIn(live.trashedFiles()), gone);
        EXPECT_EQ(live.parts.sounds.played, std::vector{Sounds::Event::movedToTrash});
    }
}

TEST_F(ScreenshotRemovalTest, nothingMovedIsNoStep) {
    const QStringList names = writeOld(2);
    start();
    ASSERT_TRUE(settings.setScreenshotsPinned({path(names.first())}, true));
    remove({names.first()});
    EXPECT_TRUE(told.isEmpty()) << "a pinned one stays and it is no error";
    QFile::remove(path(names.last()));
    remove({names.last()});
    EXPECT_EQ(told, QStringList(QStringLiteral("error")));
    EXPECT_FALSE(session.undo());
    EXPECT_TRUE(parts.sounds.played.empty());
}

TEST_F(ScreenshotRemovalTest, aFileThatWasRenamedIsFoundAndComesBackUnderItsNewName) {
    const QStringList names = writeOld(1);
    start();
    const auto shot = shots(names);
    const QString renamed = QStringLiteral("Screenshot_renamed.png");
    ASSERT_TRUE(QFile::rename(path(names.first()), path(renamed)));
    session.removeScreenshots(shot);
    EXPECT_EQ(filesIn(folder), QStringList());
    session.undo();
    EXPECT_EQ(filesIn(folder), QStringList(renamed));
    EXPECT_EQ(shown(), QStringList(renamed));
}

TEST_F(ScreenshotRemovalTest, twentyRemovalsCanBeUndone) {
    const QStringList names = writeOld(21);
    start();
    for (const QString &name : names)
        remove({name});
    int undone = 0;
    while (session.undo())
        ++undone;
    EXPECT_EQ(undone, 20);
    EXPECT_EQ(shown(), names.mid(1));
    EXPECT_EQ(session.screenshotUndoManager.redoNames().size(), 20);
    remove({names.last()});
    EXPECT_FALSE(session.redo()) << "a new removal leaves nothing to redo";
}

TEST_F(ScreenshotRemovalTest, theEditorsScreenshotGoesUnlessItIsPinned) {
    const QStringList names = writeOld(2);
    start();
    const auto fromEditor = [this](const Shot &shot) {
        const auto removed = session.removeScreenshotFromEditor(shot.location, shot.identity);
        return removed ? QString() : removed.error().message;
    };
    const auto listed = shots(names);
    ASSERT_TRUE(settings.setScreenshotsPinned({path(names.first())}, true));
    EXPECT_EQ(fromEditor(listed.at(0)),
              QStringLiteral("This screenshot is pinned. Unpin it before moving it to Trash."));
    ASSERT_TRUE(settings.setScreenshotsPinned({path(names.first())}, false));
    readFolder();
    EXPECT_EQ(fromEditor(listed.at(0)), QString());
    parts.scheduler.settle();
    EXPECT_EQ(shown(), names.mid(1)) << "a scan from before does not bring it back";
    session.undo();
    EXPECT_EQ(shown(), names);
    replace(path(names.last()));
    EXPECT_EQ(fromEditor(listed.at(1)), QStringLiteral("The original file has changed."));
    EXPECT_TRUE(errors.isEmpty()) << "the editor tells it";
}

TEST_F(ScreenshotRemovalTest, whatTheEditorSavedAMomentAgoIsKnownBeforeTheNextScan) {
    const QStringList names = writeOld(2);
    start();
    const QString file = path(names.first());
    session.beginEditorSave(shots(names).front());
    replace(file);
    session.finishEditorWrite(file);
    const auto identity = ScreenshotFileIdentity::of(file, *parts.files.facts(file));
    ASSERT_TRUE(session.removeScreenshotFromEditor(file, identity));
    EXPECT_EQ(shown(), names.mid(1));
    session.undo();
    EXPECT_EQ(shown(), names);
}

TEST_F(ScreenshotRemovalTest, aScanFromBeforeTheMovesChangesNothingAndAnnouncesWhatItMetOnce) {
    const QStringList names = writeOld(3);
    start();
    const QString fresh = nameOf(900);
    for (const bool isSlow : {false, true}) {
        if (isSlow)
            slowDown(5ms);
        announced.clear();
        writeFile(path(fresh), pictureBytes("png"));
        readFolder();
        remove(names);
        EXPECT_EQ(shown().isEmpty(), !isSlow);
        EXPECT_EQ(announced, QStringList()) << isSlow;
        session.onChange = [this] { EXPECT_EQ(shown(), QStringList()); };
        parts.scheduler.settle();
        session.onChange = {};
        settle();
        EXPECT_EQ(shown(), QStringList(fresh)) << isSlow;
        EXPECT_EQ(announced, QStringList(fresh)) << isSlow;

        announced.clear();
        remove({fresh});
        settle();
        readFolder();
        session.undo();
        parts.scheduler.settle();
        EXPECT_EQ(shown(), QStringList(fresh)) << isSlow;
        settle();
        EXPECT_EQ(announced, QStringList()) << "what comes back is not new";
        QFile::remove(path(fresh));
        readFolder();
        session.undo();
        settle();
        EXPECT_EQ(shown(), names) << isSlow;
    }
}

TEST_F(ScreenshotRemovalTest, whatIsLeavingAlreadyIsNotAskedForAgain) {
    const QStringList names = writeOld(6);
    start();
    slowDown(5ms);
    remove(names.mid(0, 5));
    remove(names.mid(0, 5));
    remove(names);
    settle();
    EXPECT_TRUE(errors.isEmpty());
    EXPECT_EQ(shown(), QStringList());
    session.undo();
    EXPECT_EQ(shown(), names.mid(5));
    session.undo();
    EXPECT_EQ(shown(), names);
    EXPECT_FALSE(session.undo());
}

TEST_F(ScreenshotRemovalTest, undoAndRedoWaitForTheBatchThatRunsAndKeepTheirOrder) {
    const QStringList names = writeOld(12);
    start();
    slowDown(5ms);
    remove(names.mid(0, 6));
    settle();
    remove(names.mid(6, 3));
    EXPECT_EQ(shown().size(), 6) << "still under way";
    EXPECT_TRUE(session.undo());
    EXPECT_TRUE(session.undo());
    EXPECT_TRUE(session.redo());
    remove(names.mid(9, 3));
    settle();
    EXPECT_EQ(shown(), names.mid(6, 3));
    EXPECT_EQ(filesIn(folder), names.mid(6, 3));
    EXPECT_EQ(session.screenshotUndoManager.undoNames().size(), 2);
    EXPECT_TRUE(session.screenshotUndoManager.redoNames().isEmpty());
}
