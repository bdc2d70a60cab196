#include "screenshots/ScreenshotFolderTraversal.h"

#include "platform/linux/LinuxFileFacts.h"
#include "support/ScratchMount.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/mount.h>

using namespace tembra;

namespace {

class FolderTraversal : public testing::Test {
protected:
    [[nodiscard]] QString path(const char *name) const { return m_root.filePath(QString::fromUtf8(name)); }

    QTemporaryDir m_root;
    // One of them is never made, and one is a link itself.
    const StandardFolders m_folders{.home = path("home"),
                                    .desktop = path("home/Desktop"),
                                    .documents = path("home/Documents"),
                                    .downloads = path("home/Downloads"),
                                    .pictures = path("home/Pictures"),
                                    .videos = path("home/Movies"),
                                    .music = path("home/Music"),
                                    .publicShare = path("home/Public"),
                                    .library = path("home/Library"),
                                    .applications = path("home/Library/Applications"),
                                    .shared = path("Shared"),
                                    .root = QStringLiteral("/")};
    const LinuxFileFactsReader m_files;
    const ScreenshotFolderTraversal m_traversal{m_folders, m_files};
};

} // namespace

TEST_F(FolderTraversal, staysOutOfTheSubfoldersOfBroadFoldersHoweverTheyAreReached) {
    for (const char *folder :
         {"home/Desktop", "home/Documents/Shots/2024", "home/Downloads", "home/Pictures", "home/Movies",
          "home/Public", "home/Library/Applications", "Shared", "disk/Music"})
        ASSERT_TRUE(QDir().mkpath(path(folder)));
    ASSERT_TRUE(QFile::link(path("disk/Music"), path("home/Music")));
    ASSERT_TRUE(QFile::link(path("home/Pictures"), path("toPictures")));
    ASSERT_TRUE(QFile::link(path("home"), path("toHome")));
    ASSERT_TRUE(QFile::link(path("home/Documents/Shots"), path("home/Desktop/toShots")));
    for (const QString &shared : m_traversal.sharedFolders())
        EXPECT_FALSE(m_traversal.includesSubfolders(shared)) << qPrintable(shared);
    struct Case {
        const char *folder;
        bool isIncluded;
    };
    const Case cases[]{
        {"home/", false},
        {"home/Desktop/../Downloads", false},
        {"toPictures", false},
        {"toHome/Documents", false},
        {"home/Music", false},
        {"disk/Music", false},
        {"home/Documents/Shots", true},
        {"home/Documents/Shots/2024", true},
        {"home/Desktop/toShots", true},
        {"disk", true},
        {"home/desktop", true},
        {"gone", true},
    };
    for (const Case &c : cases)
        EXPECT_EQ(m_traversal.includesSubfolders(path(c.folder)), c.isIncluded) << c.folder;
}

TEST_F(FolderTraversal, aBroadFolderMountedASecondTimeIsStillOne) {
    const ScratchMount disk(QStringLiteral("tmpfs"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    const QString second = disk.path() + QStringLiteral("/second");
    ASSERT_TRUE(QDir().mkpath(path("home/Desktop")) && QDir().mkpath(second));
    EXPECT_TRUE(m_traversal.includesSubfolders(second));
    const QByteArray target = QFile::encodeName(second);
    ASSERT_EQ(::mount(QFile::encodeName(path("home/Desktop")).constData(), target.constData(), nullptr,
                      MS_BIND, nullptr),
              0);
    EXPECT_FALSE(m_traversal.includesSubfolders(second));
    ASSERT_EQ(::umount(target.constData()), 0);
}
