#include "settings/ScreenshotFolderAccess.h"

#include "platform/linux/LinuxBookmarks.h"
#include "settings/CocoaError.h"
#include "support/Files.h"
#include "support/Unprivileged.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>

using namespace tembra;

namespace {

// On real folders below one root, with a Trash beside them.
class FolderAccess : public testing::Test {
protected:
    [[nodiscard]] QString path(const char *name) const { return m_root.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] QString makeFolder(const char *name) const {
        EXPECT_TRUE(QDir().mkpath(path(name)));
        return path(name);
    }

    QTemporaryDir m_root;
    LinuxFileFactsReader m_files;
    const StandardFolders m_folders{.trash = {path("Trash")}};
    LinuxBookmarks m_bookmarks{m_files, m_folders};
    ScreenshotFolderAccess m_access{m_bookmarks, m_files, m_folders};
};

bool needsNoRenewal(const Result<std::optional<QByteArray>> &restored) {
    return restored && !restored->has_value();
}

} // namespace

TEST_F(FolderAccess, onlyAFolderThatCanBeUsedIsGranted) {
    static_cast<void>(makeFolder("Shots/Inner"));
    static_cast<void>(makeFolder("Trash/files/Shots"));
    static_cast<void>(makeFolder("Trash2"));
    writeFile(path("file"));
    ASSERT_TRUE(QFile::link(path("Shots"), path("link")));
    ASSERT_TRUE(QFile::link(path("Trash/files/Shots"), path("linkIntoTrash")));
    ASSERT_TRUE(QFile::link(path("gone"), path("dangling")));
    struct Case {
        QString folder;
        QString domain;
        int code;
    };
    const Case cases[]{
        {path("Shots"), {}, 0},
        {path("Shots/Inner/"), {}, 0},
        {path("link"), {}, 0},
        {path("Trash2"), {}, 0},
        {path("file"), CocoaError::domain, CocoaError::fileReadNotDirectory},
        {path("gone"), posixErrorDomain, ENOENT},
        {path("dangling"), posixErrorDomain, ENOENT},
        {path("file/below"), posixErrorDomain, ENOTDIR},
        {path("Trash"), CocoaError::domain, CocoaError::fileReadNoPermission},
        {path("Trash/files/Shots"), CocoaError::domain, CocoaError::fileReadNoPermission},
        {path("Shots/../Trash/files/Shots"), CocoaError::domain, CocoaError::fileReadNoPermission},
        {path("linkIntoTrash"), CocoaError::domain, CocoaError::fileReadNoPermission},
        {QStringLiteral("https://example.org"), CocoaError::domain, CocoaError::fileReadUnsupportedScheme},
        {QStringLiteral("Shots"), CocoaError::domain, CocoaError::fileReadUnsupportedScheme},
        {QString(), CocoaError::domain, CocoaError::fileReadUnsupportedScheme},
    };
    for (const Case &c : cases) {
        m_access.stop();
        const auto granted = m_access.grant(c.folder);
        const Error found = granted ? Error() : granted.error();
        EXPECT_EQ(found.domain, c.domain) << qPrintable(c.folder);
        EXPECT_EQ(found.code, c.code) << qPrintable(c.folder);
        EXPECT_EQ(m_access.scopedURL().has_value(), c.code == 0) << qPrintable(c.folder);
        EXPECT_EQ(granted || !found.message.isEmpty(), true) << qPrintable(c.folder);
    }
}

TEST_F(FolderAccess, aFolderWithoutPermissionFailsWithTheSystemsError) {
    const QByteArray folder = QFile::encodeName(makeFolder("Shots"));
    ASSERT_EQ(::chmod(QFile::encodeName(m_root.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(folder.constData(), 0), 0);
    {
        const Unprivileged unprivileged;
        const auto valid = m_access.validate(path("Shots"), true);
        ASSERT_FALSE(valid);
        EXPECT_EQ(valid.error().domain, posixErrorDomain);
        EXPECT_EQ(valid.error().code, EACCES);
    }
    ASSERT_EQ(::chmod(folder.constData(), 0700), 0);
}

TEST_F(FolderAccess, aBookmarkFollowsTheFolderAndIsRenewedOnceItMoved) {
    const QString first = makeFolder("Shots");
    const auto stored = m_access.grant(first);
    ASSERT_TRUE(stored);
    EXPECT_TRUE(needsNoRenewal(m_access.restore(*stored)));
    EXPECT_TRUE(needsNoRenewal(m_access.restore(std::nullopt)));
    EXPECT_EQ(m_access.folder(), first);

    const QString moved = makeFolder("Neighbour") + QStringLiteral("/Renamed");
    ASSERT_TRUE(QDir().rename(first, moved));
    const auto renewed = m_access.restore(*stored);
    ASSERT_TRUE(renewed && *renewed);
    EXPECT_EQ(m_access.folder(), moved);
    EXPECT_EQ(m_access.scopedURL(), moved);

    ScreenshotFolderAccess later(m_bookmarks, m_files, m_folders);
    EXPECT_TRUE(needsNoRenewal(later.restore(*renewed)));
    EXPECT_EQ(later.folder(), moved);
}

TEST_F(FolderAccess, aGrantThroughALinkFollowsTheFolderItLedTo) {
    const QString folder = makeFolder("Shots");
    ASSERT_TRUE(QFile::link(folder, path("link")));
    const auto stored = m_access.grant(path("link"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(m_access.folder(), path("link"));
    ASSERT_TRUE(QDir().rename(folder, path("Renamed")));
    ASSERT_TRUE(m_access.restore(*stored));
    EXPECT_EQ(m_access.folder(), path("Renamed"));
}

TEST_F(FolderAccess, aFailedRestoreOrGrantLeavesTheFolderHeldBefore) {
    const QString held = makeFolder("Held");
    const auto trashed = m_access.grant(makeFolder("Trashed"));
    const auto deleted = m_access.grant(makeFolder("Deleted"));
    const auto replaced = m_access.grant(makeFolder("Replaced"));
    ASSERT_TRUE(trashed && deleted && replaced && m_access.grant(held));
    ASSERT_TRUE(QDir().rename(path("Trashed"), makeFolder("Trash/files") + QStringLiteral("/Trashed")));
    ASSERT_TRUE(QDir().rmdir(path("Deleted")) && QDir().rmdir(path("Replaced")));
    writeFile(path("Replaced"));

    const auto codeOf = [this](const QByteArray &bookmark) {
        const auto restored = m_access.restore(bookmark);
        return restored ? 0 : restored.error().code;
    };
    EXPECT_EQ(codeOf(*trashed), CocoaError::fileReadNoPermission);
    EXPECT_EQ(codeOf(*deleted), Bookmarks::gone);
    EXPECT_EQ(codeOf(*replaced), CocoaError::fileReadNotDirectory);
    EXPECT_EQ(codeOf("nonsense"), Bookmarks::malformed);
    EXPECT_FALSE(m_access.grant(path("gone")));
    EXPECT_EQ(m_access.folder(), held);
    EXPECT_EQ(m_access.scopedURL(), held);
}
