#include "screenshots/Shot.h"

#include "platform/linux/LinuxFileFacts.h"
#include "platform/linux/LinuxFileReferences.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

class ShotPath : public testing::Test {
protected:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] Shot shotOf(const QString &file, bool hasIdentity = true) const {
        FileFacts facts = *m_files.facts(file);
        if (!hasIdentity)
            facts.resource.reset();
        return {.location = file,
                .identity = ScreenshotFileIdentity::of(file, facts),
                .stamp = {},
                .createdAt = {}};
    }
    [[nodiscard]] QString now(const Shot &shot) const { return shot.currentPath(m_files, m_references); }

    QTemporaryDir m_folder;
    const LinuxFileFactsReader m_files;
    const LinuxFileReferences m_references{m_files};
};

} // namespace

TEST_F(ShotPath, followsTheFileToItsNewNameAndFolder) {
    const Shot shot = shotOf(writeFile(path("a.png")));
    EXPECT_EQ(now(shot), path("a.png"));
    ASSERT_TRUE(QFile::rename(path("a.png"), path("b.png")));
    EXPECT_EQ(now(shot), path("b.png"));
    writeFile(path("a.png"));
    EXPECT_EQ(now(shot), path("b.png"));
    ASSERT_TRUE(QDir().mkdir(path("inner")) && QFile::rename(path("b.png"), path("inner/c.png")));
    EXPECT_EQ(now(shot), path("inner/c.png"));
    ASSERT_TRUE(QFile::remove(path("inner/c.png")));
    EXPECT_EQ(now(shot), QString());
}

TEST_F(ShotPath, isTheSameFileAfterItWasWrittenTo) {
    const Shot shot = shotOf(writeFile(path("a.png")));
    writeFile(path("a.png"), "other content");
    EXPECT_EQ(now(shot), path("a.png"));
}

TEST_F(ShotPath, anotherFileWithADateOfItsOwnIsNotTakenForIt) {
    const QString file = writeFile(path("a.png"));
    const Shot shot = shotOf(file);
    if (!m_files.recordCreationDate(file, *m_files.facts(file)->createdAt - 1h))
        GTEST_SKIP() << "no extended attributes here";
    EXPECT_EQ(now(shot), QString());
}

TEST(ScreenshotFileIdentity, isThePathOnlyWhereTheFileHasNoIdentity) {
    const auto of = [](const char *path, std::optional<FileResource> resource,
                       std::optional<Instant> createdAt) {
        FileFacts facts;
        facts.resource = resource;
        facts.createdAt = createdAt;
        return ScreenshotFileIdentity::of(QString::fromUtf8(path), facts);
    };
    const FileResource resource{1, 2, 3};
    const Instant created{5s};
    EXPECT_EQ(of("/a", resource, created), of("/b", resource, created));
    EXPECT_EQ(qHash(of("/a", resource, created)), qHash(of("/b", resource, created)));
    EXPECT_EQ(of("/a", {}, created), of("//a/.", {}, created));
    EXPECT_EQ(qHash(of("/a", {}, created)), qHash(of("//a/.", {}, created)));
    const ScreenshotFileIdentity first = of("/a", resource, created);
    for (const auto &other :
         {of("/a", FileResource{9, 2, 3}, created), of("/a", FileResource{1, 9, 3}, created),
          of("/a", FileResource{1, 2, 9}, created), of("/a", resource, created + 1ns), of("/a", resource, {}),
          of("/a", {}, created)})
        EXPECT_FALSE(first == other);
    EXPECT_FALSE(of("/a", {}, created) == of("/b", {}, created));
    EXPECT_FALSE(of("/a", {}, created) == of("/a", {}, {}));
}
