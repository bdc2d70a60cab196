#include "platform/linux/LinuxBookmarks.h"

#include "platform/linux/Descriptor.h"
#include "platform/linux/MountTable.h"
#include "support/Files.h"
#include "support/ScratchMount.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <random>
#include <sys/inotify.h>
#include <unistd.h>

using namespace tembra;

namespace {

// Around a folder "Shots" with neighbours, and with a Trash far away.
class BookmarksTest : public testing::Test {
protected:
    BookmarksTest() {
        for (const char *folder : {"user/Shots/Inner", "user/Neighbour/Deep", "far/Trash/files"})
            EXPECT_TRUE(QDir().mkpath(path(folder)));
    }

    [[nodiscard]] QString path(const char *name) const { return m_root.filePath(QString::fromUtf8(name)); }
    // 0 when it resolves.
    [[nodiscard]] int codeOf(const QByteArray &bookmark) const {
        const auto resolved = m_bookmarks.resolve(bookmark);
        return resolved ? 0 : resolved.error().code;
    }

    QTemporaryDir m_root;
    const LinuxFileFactsReader m_files;
    const StandardFolders m_folders{.trash = {path("far/Trash")}};
    const LinuxBookmarks m_bookmarks{m_files, m_folders};
};

} // namespace

TEST_F(BookmarksTest, filesAndFoldersAreFoundWhereTheyWereMoved) {
    struct Case {
        const char *to;
        bool isFound;
    };
    const Case cases[]{
        {"user/Shots/renamed ’ü\n.png", true},
        {"user/Shots/Inner/a.png", true},
        {"user/a.png", true},
        {"user/Neighbour/a.png", true},
        {"far/Trash/files/a.2.png", true},
        {"user/Neighbour/Deep/a.png", false},
        {"far/a.png", false},
    };
    for (const bool isFolder : {false, true}) {
        for (const Case &c : cases) {
            const QString original = path("user/Shots/a.png");
            if (isFolder)
                ASSERT_TRUE(QDir().mkdir(original));
            else
                writeFile(original);
            const auto bookmark = m_bookmarks.create(original);
            ASSERT_TRUE(bookmark);
            const auto still = m_bookmarks.resolve(*bookmark);
            ASSERT_TRUE(still);
            EXPECT_EQ(still->path, original);
            EXPECT_FALSE(still->stale);

            const QString moved = path(c.to);
            ASSERT_TRUE(QDir().rename(original, moved));
            const auto found = m_bookmarks.resolve(*bookmark);
            ASSERT_EQ(found.has_value(), c.isFound) << c.to;
            if (found) {
                EXPECT_EQ(found->path, moved);
                EXPECT_TRUE(found->stale);
                EXPECT_FALSE(m_bookmarks.resolve(*m_bookmarks.create(found->path))->stale);
            } else {
                EXPECT_EQ(found.error().domain, QStringLiteral("Tembra.Bookmarks"));
                EXPECT_EQ(found.error().code, Bookmarks::gone);
            }
            ASSERT_TRUE(isFolder ? QDir().rmdir(moved) : QFile::remove(moved));
        }
    }
}

TEST_F(BookmarksTest, whatTookThePathIsTakenAsStaleUnlessTheFileIsFoundItself) {
    const QString original = writeFile(path("user/Shots/a.png"));
    const auto bookmark = m_bookmarks.create(original);
    ASSERT_TRUE(bookmark);
    const QString moved = path("user/Neighbour/a.png");
    ASSERT_TRUE(QFile::rename(original, moved));
    writeFile(original);
    EXPECT_EQ(m_bookmarks.resolve(*bookmark)->path, moved);

    ASSERT_TRUE(QFile::remove(moved));
    const auto found = m_bookmarks.resolve(*bookmark);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->path, original);
    EXPECT_TRUE(found->stale);

    ASSERT_TRUE(QFile::remove(original));
    EXPECT_EQ(codeOf(*bookmark), Bookmarks::gone);
    EXPECT_EQ(m_bookmarks.create(original).error().code, ENOENT);
}

TEST_F(BookmarksTest, aFileOnAnAbsentVolumeIsNotMistakenForOneInItsPlace) {
    ScratchMount disk(QStringLiteral("ext4"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    const QString file = writeFile(disk.path() + QStringLiteral("/a.png"));
    const auto bookmark = m_bookmarks.create(file);
    ASSERT_TRUE(bookmark);
    ASSERT_TRUE(disk.unmount());
    EXPECT_EQ(codeOf(*bookmark), Bookmarks::volumeAbsent);
    writeFile(file);
    const auto mounts = readMountTable();
    EXPECT_EQ(codeOf(*bookmark), Bookmarks::volumeAbsent);
    EXPECT_EQ(readMountTable(), mounts);

    ASSERT_TRUE(disk.mount());
    const auto found = m_bookmarks.resolve(*bookmark);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->path, file);
    EXPECT_FALSE(found->stale);
}

TEST_F(BookmarksTest, noFolderOfAnotherVolumeIsOpenedInTheSearch) {
    ScratchMount neighbour(QStringLiteral("tmpfs"));
    if (!neighbour.problem().isEmpty())
        GTEST_SKIP() << qPrintable(neighbour.problem());
    const QString file = writeFile(QFileInfo(neighbour.path()).path() + QStringLiteral("/a.png"));
    const auto bookmark = m_bookmarks.create(file);
    ASSERT_TRUE(bookmark && QFile::remove(file));

    const Descriptor events(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    ASSERT_GE(::inotify_add_watch(events.number(), QFile::encodeName(neighbour.path()).constData(), IN_OPEN),
              0);
    EXPECT_EQ(codeOf(*bookmark), Bookmarks::gone);
    std::array<char, 4096> buffer{};
    EXPECT_EQ(::read(events.number(), buffer.data(), buffer.size()), -1);
    EXPECT_EQ(errno, EAGAIN);
}

TEST_F(BookmarksTest, bytesThatAreNoBookmarkAreRefused) {
    for (const char *bytes :
         {"", "x", "[]", "{}", R"({"path":7})", R"({"path":""})", R"({"path":"relative"})",
          R"({"path":"/tmp\u0000/x"})", R"({"path":"/tmp","inode":7})", R"({"path":"/tmp","inode":"1"})",
          R"({"path":"/tmp","inode":"1","volume":"2","generation":"x"})",
          R"({"path":"/tmp","inode":"1","volume":"fffffffffffffffff","generation":"0"})"})
        EXPECT_EQ(codeOf(bytes), Bookmarks::malformed) << bytes;

    const auto good = m_bookmarks.create(writeFile(path("user/Shots/a.png")));
    ASSERT_TRUE(good);
    for (qsizetype length = 0; length < good->size(); ++length)
        EXPECT_EQ(codeOf(good->left(length)), Bookmarks::malformed) << length;
    std::minstd_rand random(7);
    for (int round = 0; round < 2000; ++round) {
        QByteArray damaged = *good;
        damaged[static_cast<qsizetype>(random()) % damaged.size()] = static_cast<char>(random());
        const auto resolved = m_bookmarks.resolve(damaged);
        EXPECT_TRUE(!resolved || resolved->path.startsWith(u'/')) << damaged.constData();
    }
}
