#include "platform/linux/LinuxFileFacts.h"

#include "platform/linux/MountTable.h"
#include "support/Files.h"
#include "support/ScratchMount.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

// The facts on every file system that promises all of them.
class LinuxFileFacts : public testing::TestWithParam<const char *> {
protected:
    LinuxFileFacts() : m_folder(QString::fromUtf8(GetParam()) + QStringLiteral("/tembra-XXXXXX")) {}

    void SetUp() override {
        if (!m_folder.isValid())
            GTEST_SKIP() << GetParam() << " cannot be written to";
    }

    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    QTemporaryDir m_folder;
    const LinuxFileFactsReader m_reader;
};

INSTANTIATE_TEST_SUITE_P(Places, LinuxFileFacts, testing::Values(".", "/dev/shm"),
                         [](const auto &place) { return place.index == 0 ? "WorkingFolder" : "Memory"; });

} // namespace

TEST_P(LinuxFileFacts, identityAndCreationSurviveRenamingAndRewriting) {
    const QString file = writeFile(path("a"));
    const auto before = m_reader.facts(file);
    ASSERT_TRUE(before && before->resource && before->createdAt);
    ASSERT_TRUE(QDir().rename(file, path("b")));
    writeFile(path("b"), QByteArrayLiteral("longer"));
    const auto after = m_reader.facts(path("b"));
    ASSERT_TRUE(after);
    EXPECT_EQ(after->resource, before->resource);
    EXPECT_EQ(after->createdAt, before->createdAt);
    EXPECT_EQ(after->size, 6U);
    EXPECT_EQ(m_reader.facts(file).error().code, ENOENT);
}

TEST_P(LinuxFileFacts, aNewFileInThePlaceOfAnOldOneIsAnother) {
    const QString file = writeFile(path("a"));
    const auto first = m_reader.facts(file);
    ASSERT_TRUE(first);
    ASSERT_TRUE(QFile::remove(file));
    const auto second = m_reader.facts(writeFile(file));
    ASSERT_TRUE(second);
    EXPECT_NE(first->resource, second->resource);
    EXPECT_EQ(first->resource->volume, second->resource->volume);
}

TEST_P(LinuxFileFacts, creationIsRecordedElseTheEarlierOfBirthAndModification) {
    const QString file = writeFile(path("a"));
    const Instant birth = *m_reader.facts(file)->createdAt;
    const Instant old{1'500'000'000'123'456'789ns};
    setModified(file, birth + 1h);
    EXPECT_EQ(m_reader.facts(file)->createdAt, birth);
    setModified(file, old);
    EXPECT_EQ(m_reader.facts(file)->createdAt, old);
    EXPECT_EQ(m_reader.facts(file)->modifiedAt, old);

    const auto recorded = m_reader.recordCreationDate(file, birth - 5s);
    if (!recorded && recorded.error().code == ENOTSUP)
        GTEST_SKIP() << "no extended attributes on " << GetParam();
    EXPECT_EQ(m_reader.facts(file)->createdAt, birth - 5s);
    EXPECT_EQ(m_reader.facts(path("none")).error().domain, posixErrorDomain);
}

TEST_P(LinuxFileFacts, aLinkIsDescribedItselfUnlessItIsToBeFollowed) {
    const QString file = writeFile(path("a"));
    ASSERT_TRUE(QFile::link(file, path("link")));
    EXPECT_EQ(m_reader.facts(path("link"))->kind, FileKind::link);
    EXPECT_EQ(m_reader.targetFacts(path("link"))->kind, FileKind::regular);
    EXPECT_EQ(m_reader.targetFacts(path("link"))->resource, m_reader.facts(file)->resource);
    EXPECT_NE(m_reader.facts(path("link"))->resource, m_reader.facts(file)->resource);
    EXPECT_EQ(m_reader.facts(m_folder.path())->kind, FileKind::directory);
}

TEST(LinuxVolumes, anIdNamesTheFileSystemAcrossMountsAndNoOther) {
    ScratchMount disk(QStringLiteral("ext4"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    const LinuxFileFactsReader reader;
    const auto outside = reader.volumeIdOf(QDir::currentPath());
    const auto first = reader.volumeIdOf(disk.path());
    ASSERT_TRUE(outside && first);
    EXPECT_NE(*first, *outside);
    EXPECT_TRUE(reader.isVolumeMounted(*first));
    EXPECT_TRUE(reader.isVolumeMounted(*outside));

    ASSERT_TRUE(disk.unmount());
    EXPECT_FALSE(reader.isVolumeMounted(*first));
    EXPECT_EQ(reader.volumeIdOf(disk.path()), outside);

    ASSERT_TRUE(disk.mount());
    EXPECT_EQ(reader.volumeIdOf(disk.path()), first);
    EXPECT_TRUE(reader.isVolumeMounted(*first));
}

TEST(LinuxVolumes, aDeviceNumberGivenToAnotherFileSystemIsNotTakenForTheFirst) {
    ScratchMount first(QStringLiteral("tmpfs"));
    if (!first.problem().isEmpty())
        GTEST_SKIP() << qPrintable(first.problem());
    const LinuxFileFactsReader reader;
    const auto before = reader.volumeIdOf(first.path());
    struct stat device {};
    ASSERT_EQ(::stat(QFile::encodeName(first.path()).constData(), &device), 0);
    ASSERT_TRUE(first.unmount());
    ASSERT_TRUE(first.mount());
    struct stat sameDevice {};
    ASSERT_EQ(::stat(QFile::encodeName(first.path()).constData(), &sameDevice), 0);
    if (device.st_dev != sameDevice.st_dev)
        GTEST_SKIP() << "the kernel gave another device number";
    EXPECT_NE(reader.volumeIdOf(first.path()), before);
}

TEST(LinuxFileFactsOnFat, tellsNoIdentityBecauseFilesAreNumberedAnew) {
    ScratchMount stick(QStringLiteral("vfat"));
    if (!stick.problem().isEmpty())
        GTEST_SKIP() << qPrintable(stick.problem());
    const LinuxFileFactsReader reader;
    const auto facts = reader.facts(writeFile(stick.path() + QStringLiteral("/a.png")));
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->resource, std::nullopt);
    EXPECT_EQ(reader.recordCreationDate(stick.path() + QStringLiteral("/a.png"), Instant{}).error().code,
              ENOTSUP);
}

TEST(MountTable, readsAWellFormedLineAndNoOther) {
    EXPECT_EQ(parseMountLine("36 35 98:0 /mnt1 /mnt/two\\040words rw,noatime master:1 - ext3 /dev/root rw\n"),
              (MountEntry{36, "/mnt/two words", "ext3", "/dev/root", "/mnt1"}));
    for (const char *line :
         {"", "36 35 98:0 / /mnt rw -", "x 35 98:0 / /mnt rw - ext3 /dev/root rw", "36 - a b c d e f"})
        EXPECT_EQ(parseMountLine(line), std::nullopt) << line;
}
