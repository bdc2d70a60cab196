#include "platform/CoordinatorFixture.h"
#include "platform/linux/Descriptor.h"
#include "support/Unprivileged.h"

#include <cerrno>
#include <sys/xattr.h>

using namespace tembra;

namespace {

struct stat statusOf(const QString &path) {
    struct stat status {};
    EXPECT_EQ(::stat(pathBytes(path).constData(), &status), 0);
    return status;
}

unsigned modeOf(const QString &path) {
    return statusOf(path).st_mode & 07777U;
}

QByteArray attributeOf(const QString &path, const char *name) {
    QByteArray value(256, '\0');
    const ssize_t size =
        ::getxattr(pathBytes(path).constData(), name, value.data(), static_cast<std::size_t>(value.size()));
    return size < 0 ? QByteArrayLiteral("(none)") : value.first(size);
}

bool setAttribute(const QString &path, const char *name, const QByteArray &value) {
    return ::setxattr(pathBytes(path).constData(), name, value.constData(),
                      static_cast<std::size_t>(value.size()), 0) == 0;
}

using LinuxFileCoordinatorTest = CoordinatorFixture;

} // namespace

TEST_F(LinuxFileCoordinatorTest, aReplacedFileKeepsItsOwnerPermissionsAndAttributes) {
    // As the kernel keeps it (acl(5)): the owner rw, the user 65534 r, the group r, all together at most r.
    const auto list = QByteArray::fromHex("02000000"
                                          "01000600ffffffff"
                                          "02000400feff0000"
                                          "04000400ffffffff"
                                          "10000400ffffffff"
                                          "20000000ffffffff");
    ASSERT_EQ(::chmod(pathBytes(m_shot).constData(), 0640), 0);
    ASSERT_TRUE(setAttribute(m_shot, "user.one", "1") && setAttribute(m_shot, "user.empty", ""));
    const bool hasList = setAttribute(m_shot, "system.posix_acl_access", list);
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(pathBytes(m_shot).constData(), 65534, 65533), 0);
    }
    const struct stat before = statusOf(m_shot);

    ASSERT_TRUE(save());
    EXPECT_EQ(contentOf("shot.png"), "new");
    EXPECT_EQ(names(), m_onlyShot);
    EXPECT_NE(statusOf(m_shot).st_ino, before.st_ino);
    EXPECT_EQ(statusOf(m_shot).st_mode, before.st_mode);
    EXPECT_EQ(statusOf(m_shot).st_uid, before.st_uid);
    EXPECT_EQ(statusOf(m_shot).st_gid, before.st_gid);
    EXPECT_EQ(attributeOf(m_shot, "user.one"), "1");
    EXPECT_EQ(attributeOf(m_shot, "user.empty"), "");
    EXPECT_EQ(attributeOf(m_shot, "system.posix_acl_access"), hasList ? list : QByteArrayLiteral("(none)"));
}

TEST_F(LinuxFileCoordinatorTest, aGroupThatCannotBeGivenGainsNothing) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can have a file of another user";
    ASSERT_EQ(::chmod(pathBytes(m_folder.path()).constData(), 0777), 0);
    ASSERT_EQ(::chown(pathBytes(m_shot).constData(), 0, 65533), 0);
    ASSERT_EQ(::chmod(pathBytes(m_shot).constData(), 0664), 0);
    const Unprivileged unprivileged;
    EXPECT_TRUE(save());
    EXPECT_EQ(modeOf(m_shot), 0644U);
}

TEST_F(LinuxFileCoordinatorTest, changedContentIsRefusedAndUntouched) {
    writeFile(m_shot, "changed");
    const auto refused = save();
    EXPECT_EQ(codeOf(refused), FileCoordinator::changed);
    EXPECT_EQ(refused.error().domain, FileCoordinator::errorDomain);
    EXPECT_EQ(codeOf(m_files.moveIfUnchanged(m_shot, path("b.png"), isOld)), FileCoordinator::changed);
    EXPECT_EQ(contentOf("shot.png"), "changed");
    EXPECT_EQ(names(), m_onlyShot);
}

TEST_F(LinuxFileCoordinatorTest, aProgramThatIsWritingGoesOnInThePlaceOfTheFile) {
    const Descriptor writer(::open(pathBytes(m_shot).constData(), O_WRONLY | O_APPEND));
    EXPECT_EQ(codeOf(save()), FileCoordinator::changed);
    EXPECT_EQ(::write(writer.number(), "er", 2), 2);
    EXPECT_EQ(contentOf("shot.png"), "older");
    EXPECT_EQ(names(), m_onlyShot);
}

TEST_F(LinuxFileCoordinatorTest, aProgramThatComesToWriteIsLetIn) {
    const QString link = path("link.png");
    ASSERT_EQ(::link(pathBytes(m_shot).constData(), pathBytes(link).constData()), 0);
    Descriptor writer;
    const auto open = [&] {
        writer = Descriptor(::open(pathBytes(link).constData(), O_WRONLY | O_APPEND | O_NONBLOCK));
    };
    const auto outcome = saveWhile({[] {}, open});
    if (writer.isOpen())
        GTEST_SKIP() << "no leases here";
    EXPECT_EQ(codeOf(outcome), FileCoordinator::changed);
    open();
    EXPECT_EQ(::write(writer.number(), "er", 2), 2);
    EXPECT_EQ(contentOf("shot.png"), "older");
}

TEST_F(LinuxFileCoordinatorTest, whatIsWrittenBetweenTheLookAndTheExchangeComesBack) {
    const auto inPlace = [this] { writeFile(m_shot, "theirs"); };
    const auto byName = [this] { QDir().rename(writeFile(path("their.tmp"), "theirs"), m_shot); };
    const auto anotherFile = [=, this] {
        QFile::remove(m_shot);
        byName();
    };
    for (const auto &action : {std::function<void()>(inPlace), std::function<void()>(anotherFile)}) {
        writeFile(m_shot, "old");
        EXPECT_EQ(codeOf(saveWhile({action})), FileCoordinator::changed);
        EXPECT_EQ(contentOf("shot.png"), "theirs");
        EXPECT_EQ(names(), m_onlyShot);
    }
    QFile::remove(writeFile(m_shot, "old"));
    EXPECT_EQ(codeOf(save()), ENOENT);
    writeFile(m_shot, "old");
    EXPECT_EQ(codeOf(saveWhile({[this] { QFile::remove(m_shot); }})), ENOENT);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(LinuxFileCoordinatorTest, twoVersionsOfOthersAreBothKept) {
    writeFile(path("shot copy.png"), "copy");
    const auto write = [this](const char *content) {
        return [this, content] { writeFile(m_shot, content); };
    };
    EXPECT_EQ(codeOf(saveWhile({write("first"), write("second")})), FileCoordinator::changed);
    EXPECT_EQ(contentOf("shot.png"), "first");
    EXPECT_EQ(contentOf("shot copy.png"), "copy");
    EXPECT_EQ(contentOf("shot copy 1.png"), "second");
    EXPECT_EQ(names().size(), 3);
}

TEST_F(LinuxFileCoordinatorTest, aFileWhoseReplacementWasRemovedComesBack) {
    EXPECT_EQ(codeOf(saveWhile({[this] { writeFile(m_shot, "theirs"); }, [this] { QFile::remove(m_shot); }})),
              FileCoordinator::changed);
    EXPECT_EQ(contentOf("shot.png"), "theirs");
    EXPECT_EQ(names(), m_onlyShot);
}

TEST_F(LinuxFileCoordinatorTest, aTemporaryThatWasLeftIsClearedAwayUnlessItIsSomebodysVersion) {
    writeFile(m_temporary, "old");
    EXPECT_TRUE(m_files.clearTemporary(m_shot, m_temporary, isOld));
    EXPECT_TRUE(m_files.clearTemporary(m_shot, m_temporary, isOld)) << "missing is fine";
    EXPECT_EQ(names(), m_onlyShot);
    writeFile(m_temporary, "theirs");
    EXPECT_TRUE(m_files.clearTemporary(m_shot, m_temporary, isOld));
    EXPECT_EQ(contentOf("shot copy.png"), "theirs");
    EXPECT_EQ(names().size(), 2);
}

TEST_F(LinuxFileCoordinatorTest, aVersionOfOthersIsKeptBesideTheLongestName) {
    const QString longest = QString(251, u'n') + QStringLiteral(".png");
    writeFile(path(longest), "old");
    writeFile(m_temporary, "theirs");
    EXPECT_TRUE(m_files.clearTemporary(path(longest), m_temporary, isOld));
    EXPECT_EQ(m_files.read(path(QString(246, u'n') + QStringLiteral(" copy.png"))), QByteArray("theirs"));
}

TEST_F(LinuxFileCoordinatorTest, aMoveNeverReplaces) {
    writeFile(path("b.png"), "other");
    const auto refused = m_files.moveIfUnchanged(m_shot, path("b.png"), isOld);
    EXPECT_EQ(codeOf(refused), FileCoordinator::exists);
    EXPECT_EQ(refused.error().domain, FileCoordinator::errorDomain);
    EXPECT_EQ(contentOf("shot.png"), "old");
    EXPECT_EQ(contentOf("b.png"), "other");
    EXPECT_TRUE(m_files.moveIfUnchanged(m_shot, path("c.png"), isOld));
    EXPECT_EQ(names(), (QStringList{QStringLiteral("b.png"), QStringLiteral("c.png")}));
}

TEST_F(LinuxFileCoordinatorTest, namesThatAreNoTextWork) {
    const QString odd = path(pathFromBytes("sh\xff\xe9t.png"));
    const QString temporary = path(pathFromBytes(".tembra-edit-\xff"));
    const QString moved = path(pathFromBytes("m\xff.png"));
    EXPECT_TRUE(m_files.writeAtomically(odd, "old"));
    EXPECT_TRUE(m_files.writeTemporary(temporary, "new", odd, {}));
    EXPECT_TRUE(m_files.replace(odd, temporary, "new", isOld));
    EXPECT_TRUE(m_files.moveIfUnchanged(odd, moved, [](QByteArrayView content) { return content == "new"; }));
    EXPECT_EQ(m_files.read(moved), QByteArray("new"));
    EXPECT_TRUE(m_files.remove(moved));
    EXPECT_TRUE(m_files.remove(moved)) << "missing is fine";
    EXPECT_EQ(names(), m_onlyShot);
}

TEST_F(LinuxFileCoordinatorTest, whatIsNoRegularFileIsRefused) {
    const QString link = path("link.png");
    const QString folder = path("folder.png");
    const QString pipe = path("pipe.png");
    ASSERT_TRUE(QFile::link(m_shot, link) && QDir().mkdir(folder));
    ASSERT_EQ(::mkfifo(pathBytes(pipe).constData(), 0600), 0);
    const QStringList before = names();
    for (const QString &odd : {link, folder, pipe}) {
        EXPECT_EQ(codeOf(m_files.read(odd)), FileCoordinator::notRegular);
        EXPECT_EQ(codeOf(m_files.moveIfUnchanged(odd, path("b.png"), isOld)), FileCoordinator::notRegular);
        EXPECT_EQ(codeOf(m_files.writeTemporary(m_temporary, "new", odd, {})), FileCoordinator::notRegular);
        ASSERT_TRUE(m_files.writeTemporary(m_temporary, "new", m_shot, {}));
        EXPECT_EQ(codeOf(m_files.replace(odd, m_temporary, "new", isOld)), FileCoordinator::notRegular);
        EXPECT_EQ(names(), before);
        ASSERT_EQ(codeOf(saveWhile({[&] {
                      QFile::remove(m_shot);
                      ASSERT_EQ(::rename(pathBytes(odd).constData(), pathBytes(m_shot).constData()), 0);
                  }})),
                  FileCoordinator::notRegular);
        ASSERT_EQ(::rename(pathBytes(m_shot).constData(), pathBytes(odd).constData()), 0);
        writeFile(m_shot, "old");
        EXPECT_EQ(names(), before);
    }
}

TEST_F(LinuxFileCoordinatorTest, aFileThatMemoryCannotTakeIsRefused) {
    ASSERT_EQ(::truncate(pathBytes(m_shot).constData(), FileCoordinator::longestFile + 1), 0);
    EXPECT_EQ(codeOf(m_files.read(m_shot)), FileCoordinator::tooLarge);
}

TEST_F(LinuxFileCoordinatorTest, aFolderWithoutPermissionStaysAsItIs) {
    ASSERT_EQ(::chmod(pathBytes(m_folder.path()).constData(), 0555), 0);
    const Unprivileged unprivileged;
    EXPECT_EQ(codeOf(save()), EACCES);
    EXPECT_EQ(codeOf(m_files.writeAtomically(m_shot, "new")), EACCES);
    EXPECT_EQ(codeOf(m_files.moveIfUnchanged(m_shot, path("b.png"), isOld)), EACCES);
    EXPECT_EQ(codeOf(m_files.makePrivateFolder(path("a/b"))), EACCES);
    EXPECT_EQ(codeOf(m_files.remove(m_shot)), EACCES);
    EXPECT_EQ(contentOf("shot.png"), "old");
    EXPECT_EQ(names(), m_onlyShot);
}

TEST_F(LinuxFileCoordinatorTest, privateFoldersAndFilesAreTheUsersAlone) {
    const QString folder = path("a/b/c");
    EXPECT_TRUE(m_files.makePrivateFolder(folder));
    EXPECT_EQ(modeOf(path("a")), 0700U);
    EXPECT_EQ(modeOf(folder), 0700U);
    ASSERT_EQ(::chmod(pathBytes(folder).constData(), 0755), 0);
    EXPECT_TRUE(m_files.makePrivateFolder(folder));
    EXPECT_EQ(modeOf(folder), 0700U);
    EXPECT_EQ(codeOf(m_files.makePrivateFolder(m_shot)), ENOTDIR);
    EXPECT_EQ(codeOf(m_files.makePrivateFolder(m_shot + QStringLiteral("/a"))), ENOTDIR);

    const QString record = folder + QStringLiteral("/record.json");
    EXPECT_TRUE(m_files.writeAtomically(record, "1") && m_files.writeAtomically(record, "2"));
    EXPECT_EQ(m_files.read(record), QByteArray("2"));
    EXPECT_EQ(modeOf(record), 0600U);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 1);
    EXPECT_FALSE(m_files.writeTemporary(record, "3", m_shot, {})) << "never replaces";
    EXPECT_EQ(m_files.read(record), QByteArray("2"));
}
