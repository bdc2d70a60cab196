#include "base/FilePath.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/ScratchMount.h"
#include "tray/Tray.h"

#include <QDirIterator>
#include <QImage>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

class ClipboardReceivingTest : public testing::Test {
protected:
    static std::unique_ptr<QMimeData> offer(const QHash<QString, QByteArray> &data) {
        auto pasteboard = std::make_unique<QMimeData>();
        for (auto item = data.cbegin(); item != data.cend(); ++item)
            pasteboard->setData(item.key(), item.value());
        return pasteboard;
    }
    bool receive(const QHash<QString, QByteArray> &data) {
        const bool isTaken = tray.store.receive(*offer(data));
        tray.settle();
        return isTaken;
    }
    static int entriesIn(const QString &folder) {
        int count = 0;
        for (QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDirIterator::Subdirectories);
             entries.hasNext(); entries.next())
            ++count;
        return count;
    }
    static QByteArray contentOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    Tray tray;
    const QString uris = QStringLiteral("text/uri-list");
    const QString text = QStringLiteral("text/plain");
    const QString png = QStringLiteral("image/png");
    const QString tiff = QStringLiteral("image/tiff");
};

} // namespace

TEST_F(ClipboardReceivingTest, takesFilesTheWayProgramsOfferThem) {
    const QString one = writeFile(tray.path("a b%.txt"));
    const QString two = writeFile(tray.path("b"));
    const QByteArray folder = tray.home.path().toUtf8();
    struct Case {
        const char *what;
        QString format;
        QByteArray data;
        QStringList taken;
    };
    const Case cases[]{
        {"a file manager",
         uris,
         "file://" + folder + "/a%20b%25.txt\r\nfile://" + folder + "/b\r\n",
         {one, two}},
        {"with a comment and this machine's name",
         uris,
         "# two\r\nfile://localhost" + folder + "/b\r\n",
         {two}},
        {"the short form", uris, "file:" + folder + "/./b/\r\n", {two}},
        {"a terminal", text, folder + "/a b%.txt\n" + folder + "/b\n", {one, two}},
        {"an editor", text, "file://" + folder + "/b", {two}},
        {"a text that begins with a path", text, folder + "/b\nand more", {}},
        {"a path of nothing", text, folder + "/none", {}},
        {"a web page", uris, "https://example.org/b\r\n", {}},
        {"another machine's file", uris, "file://elsewhere.example" + folder + "/b\r\n", {}},
        {"rubbish", uris, QByteArray("file:///\0/x\r\nfile://\r\nfile:\r\n:\r\n", 30), {}},
    };
    for (const Case &c : cases) {
        tray.store.clear();
        const auto pasteboard = offer({{c.format, c.data}});
        EXPECT_EQ(ClipboardStore::canRead(*pasteboard), !c.taken.isEmpty()) << c.what;
        EXPECT_EQ(ClipboardStore::files(*pasteboard), c.taken) << c.what;
        EXPECT_EQ(tray.store.receive(*pasteboard), !c.taken.isEmpty()) << c.what;
        EXPECT_EQ(tray.shown(), c.taken) << c.what;
        EXPECT_EQ(tray.status().isEmpty(), !c.taken.isEmpty()) << c.what;
    }
}

TEST_F(ClipboardReceivingTest, takesFilesOfAnyNameAndKindAsTheyAre) {
    const QByteArray folder = tray.home.path().toUtf8() + '/';
    const QList<QByteArray> names{"a\nb", "\xF0\x9F\x98\x80", QByteArray(255, 'n'), "not \xff\xfe text",
                                  "#x",   "a (deleted)"};
    QByteArray list;
    for (const QByteArray &name : names) {
        ASSERT_EQ(::mknod((folder + name).constData(), S_IFREG | 0600, 0), 0);
        list += "file://" + (folder + name).toPercentEncoding("/") + "\r\n";
    }
    ASSERT_TRUE(QDir().mkdir(tray.path("folder")));
    ASSERT_TRUE(QFile::link(tray.path("nowhere"), tray.path("link")));
    list += "file://" + folder + "folder\r\nfile://" + folder + "link\r\n";

    ASSERT_TRUE(receive({{uris, list}}));
    ASSERT_EQ(tray.store.entries().size(), 8U);
    EXPECT_EQ(tray.status(), QString());
    for (qsizetype i = 0; i < names.size(); ++i)
        EXPECT_EQ(pathBytes(tray.store.entries()[i].lastKnownPath), folder + names[i]);
    EXPECT_EQ(tray.store.entries().back().lastKnownPath, tray.path("link"));

    // They are followed as any other.
    ASSERT_EQ(::rename((folder + names[3]).constData(), (folder + "other \xff").constData()), 0);
    tray.reconcile();
    EXPECT_EQ(pathBytes(tray.store.entries()[3].lastKnownPath), folder + "other \xff");
}

TEST_F(ClipboardReceivingTest, refusesWithASentence) {
    const QString fifo = tray.path("fifo");
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QString file = writeFile(tray.path("file"));
    const auto url = [](const QString &path) { return "file://" + path.toUtf8() + "\r\n"; };
    struct Case {
        const char *what;
        QHash<QString, QByteArray> data;
        const char *status;
        qsizetype taken;
    };
    const Case cases[]{
        {"nothing", {}, "Could not receive this file", 0},
        {"a file that is not there", {{uris, url(tray.path("none"))}}, "Could not receive this file", 0},
        {"a pipe", {{uris, url(fifo)}}, "Pipes, sockets and devices cannot be kept in the file tray", 0},
        {"a device",
         {{uris, "file:///dev/null\r\n"}},
         "Pipes, sockets and devices cannot be kept in the file tray",
         0},
        {"some of several",
         {{uris, url(fifo) + url(file) + url(tray.path("none"))}},
         "Some files could not be received",
         1},
        {"an image that is none", {{png, "GIF89a"}}, "Could not add this image", 0},
        {"an image that is not given", {{tiff, {}}}, "Could not add this image", 0},
    };
    for (const Case &c : cases) {
        tray.store.clear();
        receive(c.data);
        EXPECT_EQ(tray.status(), QString::fromUtf8(c.status)) << c.what;
        EXPECT_EQ(tray.shown().size(), c.taken) << c.what;
    }
    EXPECT_TRUE(receive({{uris, url(file)}}));
    EXPECT_EQ(tray.status(), QString()) << "what follows is taken without a word";
    tray.store.canReceive = [] { return false; };
    EXPECT_FALSE(receive({{uris, url(file)}}));
    EXPECT_EQ(tray.shown().size(), 1);
}

TEST_F(ClipboardReceivingTest, imagesBecomeFilesInFoldersOfTheirOwn) {
    const QByteArray picture = pictureBytes("png", {4, 3});
    const QByteArray tiffBytes = QByteArray("II*\0rest", 8);
    struct Case {
        const char *what;
        QHash<QString, QByteArray> data;
        const char *name;
        QByteArray content;
    };
    const Case cases[]{
        {"PNG before TIFF", {{tiff, tiffBytes}, {png, picture}}, "File Tray Image.png", picture},
        {"TIFF", {{tiff, tiffBytes}}, "File Tray Image.tiff", tiffBytes},
        {"another format",
         {{QStringLiteral("image/jpeg"), pictureBytes("jpg", {4, 3})}},
         "File Tray Image.png",
         {}},
        {"a browser's, with the page's address",
         {{uris, "https://example.org/a.png"}, {png, picture}},
         "File Tray Image.png",
         picture},
    };
    QMimeData pixels;
    pixels.setImageData(QImage::fromData(picture));
    EXPECT_TRUE(tray.store.receive(pixels));
    tray.settle();
    EXPECT_EQ(QImage(tray.shown().constLast()).size(), QSize(4, 3)) << "of this program's own";

    QSet<QString> folders;
    for (const Case &c : cases) {
        EXPECT_TRUE(receive(c.data)) << c.what;
        const QFileInfo file(tray.shown().constLast());
        EXPECT_EQ(file.fileName(), QString::fromUtf8(c.name)) << c.what;
        EXPECT_EQ(QFileInfo(file.path()).path(), tray.scratch());
        if (c.content.isEmpty())
            EXPECT_EQ(QImage(file.filePath()).size(), QSize(4, 3)) << c.what;
        else
            EXPECT_EQ(contentOf(file.filePath()), c.content) << c.what;
        folders.insert(file.path());
    }
    EXPECT_EQ(folders.size(), 4);
    struct stat facts {};
    ASSERT_EQ(::stat(QFile::encodeName(tray.scratch()).constData(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777U, 0700U);
}

TEST_F(ClipboardReceivingTest, aFullDiskLeavesNothingHalfWritten) {
    const ScratchMount disk(QStringLiteral("ext4"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    Tray small(disk.path());
    small.settle();
    QFile filler(disk.path() + QStringLiteral("/filler"));
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(1 << 20, 'x')) > 0) {
    }
    small.store.receive(*offer({{png, "\x89PNG\r\n\x1a\n" + QByteArray(1 << 20, 'x')}}));
    small.settle();
    EXPECT_EQ(small.status(), QStringLiteral("Could not add this image"));
    EXPECT_TRUE(small.shown().isEmpty());
    EXPECT_EQ(entriesIn(small.scratch()), 0);

    ASSERT_TRUE(filler.remove());
    small.store.receive(*offer({{png, pictureBytes("png", {4, 3})}}));
    small.settle();
    EXPECT_EQ(small.shown().size(), 1);
    EXPECT_EQ(small.status(), QString());
}

TEST_F(ClipboardReceivingTest, startingEmptiesTheScratchFolderAndNothingElse) {
    ASSERT_TRUE(QDir().mkpath(tray.scratch() + QStringLiteral("/old/deep")));
    ASSERT_TRUE(QDir().mkpath(tray.path("kept")));
    writeFile(tray.path("kept/file"));
    writeFile(tray.scratch() + QStringLiteral("/old/deep/half.png"));
    ASSERT_TRUE(QFile::link(tray.path("kept"), tray.scratch() + QStringLiteral("/old/link")));
    ASSERT_TRUE(QFile::link(tray.path("kept"), tray.scratch() + QStringLiteral("/link")));
    // Before the queue has come to it.
    tray.store.receive(*offer({{FilePromises::directSave, {}}}));
    tray.settle();
    EXPECT_EQ(entriesIn(tray.scratch()), 1) << "what was received meanwhile stays";
    EXPECT_TRUE(QDir(tray.promises.folder).exists());
    EXPECT_TRUE(QFileInfo::exists(tray.path("kept/file")));
}

TEST_F(ClipboardReceivingTest, aScratchFolderThatIsNotOursIsLeftAlone) {
    ASSERT_TRUE(QDir().mkpath(tray.path("victim")));
    writeFile(tray.path("victim/file"));
    ASSERT_TRUE(QFile::link(tray.path("victim"), tray.scratch()));
    tray.settle();
    EXPECT_TRUE(receive({{png, pictureBytes("png", {4, 3})}}));
    EXPECT_EQ(entriesIn(tray.path("victim")), 1);
    EXPECT_FALSE(QFileInfo(tray.scratch()).isSymLink());
    EXPECT_EQ(tray.shown().size(), 1);

    if (::geteuid() != 0)
        GTEST_SKIP() << "only root makes folders of somebody else's";
    ASSERT_EQ(::chown(QFile::encodeName(tray.scratch()).constData(), 4711, 4711), 0);
    EXPECT_TRUE(receive({{png, pictureBytes("png", {4, 3})}}));
    EXPECT_TRUE(tray.shown().constLast().startsWith(tray.path("cache/Pavrell-Clipboard/")));
    EXPECT_EQ(entriesIn(tray.scratch()), 2);
}

TEST_F(ClipboardReceivingTest, promisedFilesAreAddedWhenTheyAreDelivered) {
    const auto promise = offer({{FilePromises::directSave, {}}});
    EXPECT_TRUE(ClipboardStore::canRead(*promise));
    const auto begin = [&] {
        EXPECT_TRUE(tray.store.receive(*promise));
        EXPECT_EQ(tray.status(), QStringLiteral("Receiving files…"));
        EXPECT_EQ(QFileInfo(tray.promises.folder).path(), tray.scratch());
    };
    begin();
    const QString saved = writeFile(tray.promises.folder + QStringLiteral("/saved"));
    tray.promises.deliver(FilePromises::Delivery{.paths = {saved}});
    EXPECT_EQ(tray.shown(), QStringList{saved});
    EXPECT_EQ(tray.status(), QString());

    begin();
    tray.promises.deliver(FilePromises::Delivery{.name = QStringLiteral("given"), .content = "bytes"});
    tray.settle();
    EXPECT_EQ(contentOf(tray.shown().constLast()), "bytes");
    EXPECT_EQ(QFileInfo(tray.shown().constLast()).fileName(), QStringLiteral("given"));
    EXPECT_FALSE(QFileInfo::exists(tray.promises.folder)) << "nothing was written there";
    EXPECT_EQ(tray.status(), QString());

    // Said to be there before it is, and under another name.
    begin();
    tray.promises.deliver(
        FilePromises::Delivery{.paths = {tray.promises.folder + QStringLiteral("/archive")}});
    EXPECT_EQ(tray.status(), QStringLiteral("Receiving files…"));
    const QString late = writeFile(tray.promises.folder + QStringLiteral("/late"));
    EXPECT_TRUE(eventually([&] {
        tray.scheduler.advance(500ms);
        return tray.shown().constLast() == late;
    }));
    EXPECT_EQ(tray.status(), QString());

    begin();
    tray.promises.deliver(FilePromises::Delivery{.paths = {tray.promises.folder + QStringLiteral("/none")}});
    tray.scheduler.advance(60s);
    EXPECT_EQ(tray.status(), QStringLiteral("Could not receive this file"));

    begin();
    tray.promises.deliver(failure({.domain = FilePromises::errorDomain}));
    EXPECT_EQ(tray.status(), QStringLiteral("Could not receive this file"));
    EXPECT_FALSE(QFileInfo::exists(tray.promises.folder));

    begin();
    tray.store.clear();
    tray.promises.deliver(FilePromises::Delivery{.paths = {saved}});
    EXPECT_TRUE(tray.shown().isEmpty()) << "it was cleared away before it came";
}
