#include "platform/linux/BeneathFolder.h"

#include "support/Files.h"
#include "support/ScratchMount.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/mount.h>

using namespace tembra;

namespace {

using Opener = Result<Descriptor> (*)(int, const QByteArray &, MissingFolders);

// Both ways to open a folder beneath another have to agree.
class BeneathFolder : public testing::TestWithParam<Opener> {
protected:
    BeneathFolder() {
        QDir(m_folder.path()).mkpath(QStringLiteral("root/sub/deeper"));
        QDir(m_folder.path()).mkpath(QStringLiteral("outside"));
        writeFile(path("root/file"));
        QFile::link(path("outside"), path("root/link"));
        QFile::link(path("root/sub"), path("root/sub/inside"));
    }

    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] int codeOf(const QByteArray &way, MissingFolders missing = MissingFolders::fail) const {
        const Descriptor root(::open(QFile::encodeName(path("root")).constData(), O_PATH | O_CLOEXEC));
        const auto opened = GetParam()(root.number(), way, missing);
        return opened ? 0 : opened.error().code;
    }

    QTemporaryDir m_folder;
};

INSTANTIATE_TEST_SUITE_P(Is, BeneathFolder, testing::Values(openBeneath, walkBeneath),
                         [](const auto &way) { return way.index == 0 ? "OpenedInOneStep" : "WalkedTo"; });

} // namespace

TEST_P(BeneathFolder, isReachedThroughFoldersAlone) {
    EXPECT_EQ(codeOf(""), 0);
    EXPECT_EQ(codeOf("sub//./deeper"), 0);
    EXPECT_EQ(codeOf("none"), ENOENT);
    EXPECT_EQ(codeOf("file"), ENOTDIR);
    EXPECT_EQ(codeOf("link"), ELOOP);
    EXPECT_EQ(codeOf("sub/inside"), ELOOP);
    EXPECT_EQ(codeOf(".."), EXDEV);
}

TEST_P(BeneathFolder, isMadeWhereItIsMissingAndNowhereElse) {
    EXPECT_EQ(codeOf("sub/new/newer", MissingFolders::areMade), 0);
    EXPECT_TRUE(QDir(path("root/sub/new/newer")).exists());
    EXPECT_EQ(codeOf("link/new", MissingFolders::areMade), ELOOP);
    EXPECT_TRUE(QDir(path("outside")).isEmpty());
}

TEST_P(BeneathFolder, isNotOnAnotherMount) {
    const ScratchMount disk(QStringLiteral("tmpfs"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    const QByteArray target = QFile::encodeName(path("root/sub/deeper"));
    ASSERT_EQ(::mount(QFile::encodeName(path("outside")).constData(), target.constData(), nullptr, MS_BIND,
                      nullptr),
              0);
    EXPECT_EQ(codeOf("sub/deeper"), EXDEV);
    EXPECT_EQ(codeOf("sub/deeper/new", MissingFolders::areMade), EXDEV);
    ::umount(target.constData());
}
