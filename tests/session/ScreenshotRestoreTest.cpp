#include "session/LiveSession.h"

#include <sys/xattr.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

class ScreenshotRestoreTest : public testing::Test, protected LiveSession {
protected:
    QStringList startWith(int count) {
        QStringList names = writeOld(count);
        start();
        return names;
    }
    void remove(const QStringList &names) { session.removeScreenshots(shots(names)); }
    [[nodiscard]] static QByteArray contentOf(const QString &file) {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
};

} // namespace

TEST_F(ScreenshotRestoreTest, whatStandsInTheWayIsToldAndNothingIsTouched) {
    const QString other = parts.home.filePath(QStringLiteral("Other"));
    const QString away = parts.home.filePath(QStringLiteral("Away"));
    QDir().mkpath(other);
    const struct {
        const char *what;
        std::function<void(const QString &name)> act;
        const char *sentence;
        bool isInTrash;
    } cases[]{
        {"Trash emptied", [this](const QString &name) { QFile::remove(trashedFiles() + u'/' + name); },
         "The file could not be located in Trash.", false},
        {"another file in the Trash",
         [this](const QString &name) {
             const QString file = trashedFiles() + u'/' + name;
             ASSERT_EQ(::rename(qPrintable(writeFile(file + u'2')), qPrintable(file)), 0);
         },
         "The file could not be located in Trash.", true},
        {"name taken", [this](const QString &name) { writeFile(path(name), "new"); },
         "The original file is no longer at this location.", true},
        {"folder away", [&](const QString &) { ASSERT_TRUE(QDir().rename(folder, away)); },
         "The original folder is unavailable.", true},
        {"folder of the settings changed",
         [&](const QString &) {
             ASSERT_TRUE(settings.grantScreenshotsFolder(other, false, false));
             session.refreshWatcher();
         },
         "The original folder has changed.", true},
    };
    for (const auto &[what, act, sentence, isInTrash] : cases) {
        const QString name = startWith(1).first();
        remove({name});
        told.clear();
        errors.clear();
        act(name);
        const QStringList before = shown();
        EXPECT_TRUE(session.undo()) << what;
        ASSERT_EQ(errors.size(), 1) << what;
        EXPECT_EQ(errors.first().first, QStringLiteral("Couldn’t Restore Screenshots"));
        EXPECT_EQ(errors.first().second, name + QStringLiteral(": ") + QString::fromUtf8(sentence)) << what;
        EXPECT_EQ(told, QStringList(QStringLiteral("error"))) << what;
        EXPECT_EQ(shown(), before) << what;
        EXPECT_EQ(filesIn(trashedFiles()).contains(name), isInTrash) << what;
        EXPECT_TRUE(session.screenshotUndoManager.redoNames().isEmpty()) << what;
        if (QByteArray(what) == "name taken") {
            EXPECT_EQ(contentOf(path(name)), "new");
        }
        QDir().rename(away, folder);
        ASSERT_TRUE(QDir(parts.trashFolder).removeRecursively());
        QFile::remove(path(name));
    }
    EXPECT_EQ(parts.sounds.played, std::vector(5, Sounds::Event::movedToTrash));
}

TEST_F(ScreenshotRestoreTest, whatFailedForItsFolderComesBackOnceThatDoes) {
    const QStringList names = startWith(2);
    const QString away = parts.home.filePath(QStringLiteral("Away"));
    remove(names);
    ASSERT_TRUE(QDir().rename(folder, away));
    for (int tries = 1; tries <= 2; ++tries) {
        EXPECT_TRUE(session.undo());
        EXPECT_EQ(errors.size(), tries);
    }
    ASSERT_TRUE(QDir().rename(away, folder));
    EXPECT_TRUE(session.undo());
    EXPECT_EQ(shown(), names);
    EXPECT_FALSE(session.undo());
    EXPECT_TRUE(session.redo());
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(ScreenshotRestoreTest, whatCanComeBackDoesAndOnlyThatCanBeRedone) {
    const QStringList names = startWith(500);
    remove(names);
    QStringList back;
    QStringList lines;
    for (int i = 0; i < names.size(); ++i) {
        const QString &name = names.at(i);
        if (i % 3 == 0) {
            QFile::remove(trashedFiles() + u'/' + name);
            lines += name + QStringLiteral(": The file could not be located in Trash.");
        } else if (i % 3 == 1) {
            writeFile(path(name), "new");
            lines += name + QStringLiteral(": The original file is no longer at this location.");
        } else {
            back += name;
        }
    }
    told.clear();
    session.undo();
    EXPECT_EQ(shown(), back);
    EXPECT_EQ(told, (QStringList{QStringLiteral("changed %1").arg(back.size()), QStringLiteral("error")}));
    ASSERT_EQ(errors.size(), 1);
    EXPECT_EQ(errors.first().second, lines.join(u'\n'));
    session.redo();
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_EQ(errors.size(), 1);
    session.undo();
    EXPECT_EQ(shown(), back);
}

TEST_F(ScreenshotRestoreTest, aMissingSubfolderIsMadeAgain) {
    const QString name = writeOld(1).first();
    const QString subfolder = path(QStringLiteral("sub"));
    QDir().mkpath(subfolder);
    ASSERT_TRUE(QFile::rename(path(name), subfolder + u'/' + name));
    start();
    remove({name});
    ASSERT_TRUE(QDir().rmdir(subfolder));
    session.undo();
    EXPECT_TRUE(QFile::exists(subfolder + u'/' + name));
    settle();
    EXPECT_EQ(shown(), QStringList(name));
}

TEST_F(ScreenshotRestoreTest, theFileHasEverythingItHad) {
    const QString name = writeOld(1).first();
    const QByteArray file = QFile::encodeName(path(name));
    ASSERT_EQ(::setxattr(file.constData(), "user.app.tembra.test", "kept", 4, 0), 0);
    ASSERT_TRUE(parts.files.recordCreationDate(path(name), parts.now() - 48h));
    setModified(path(name), parts.now() - 24h);
    const FileFacts before = *parts.files.facts(path(name));
    start();
    remove({name});
    session.undo();
    const auto after = parts.files.facts(path(name));
    ASSERT_TRUE(after);
    EXPECT_EQ(after->createdAt, before.createdAt);
    EXPECT_EQ(after->modifiedAt, before.modifiedAt);
    EXPECT_EQ(after->resource, before.resource);
    std::array<char, 4> value{};
    EXPECT_EQ(::getxattr(file.constData(), "user.app.tembra.test", value.data(), value.size()), 4);
}

TEST_F(ScreenshotRestoreTest, whatComesBackIsShownHeardAndSparedByAutoClean) {
    parts.defaults.setStringArray(QStringLiteral("dismissed"), {QStringLiteral("another")});
    const QStringList names = startWith(2);
    for (const Shot &shot : shots(names))
        session.dismissed.insert(shot.stamp);
    session.isRunning = true;
    settings.setScreenshotAutoClean(ScreenshotAutoCleanPeriod::oneDay);
    session.applySettings();
    parts.scheduler.advance(5s);
    remove(names.mid(0, 1));
    const auto before = session.timeToAutoCleanCheck();
    session.undo();
    EXPECT_EQ(session.dismissed.size(), 1);
    EXPECT_EQ(parts.defaults.stringArray(QStringLiteral("dismissed")),
              QStringList(session.dismissed.values()));
    EXPECT_EQ(parts.sounds.played, (std::vector{Sounds::Event::movedToTrash, Sounds::Event::restored}));
    const auto grace = settings.autoCleanGraceDates(parts.now());
    EXPECT_EQ(grace.keys(), QStringList(path(names.first())));
    EXPECT_NE(session.timeToAutoCleanCheck(), before) << "the wait begins anew";
}

TEST_F(ScreenshotRestoreTest, whatComesBackWhileTheFolderChangesIsNotShownInTheOtherOne) {
    const QStringList names = startWith(6);
    remove(names);
    const QString other = parts.home.filePath(QStringLiteral("Other"));
    QDir().mkpath(other);
    parts.onTrashStep = [this, other](const char *step) {
        if (QByteArray(step) != "infoRemoved" || *session.folderShelf().url == other)
            return;
        EXPECT_TRUE(settings.grantScreenshotsFolder(other, false, false));
        session.refreshWatcher();
    };
    session.undo();
    EXPECT_EQ(shown(), QStringList());
    EXPECT_EQ(filesIn(folder), names.mid(0, 1));
    EXPECT_EQ(filesIn(trashedFiles()), names.mid(1));
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors.first().second.endsWith(QStringLiteral("The original folder has changed.")));
}
