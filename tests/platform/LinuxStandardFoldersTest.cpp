#include "platform/linux/LinuxStandardFolders.h"

#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// A user whose home is a folder of the test. The environment stays: every test is a process of its own.
class LinuxFolders : public testing::Test {
protected:
    LinuxFolders() {
        qputenv("HOME", QFile::encodeName(m_home.path()));
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            qputenv(name, "relative");
        qunsetenv("TEMBRA_HOME");
    }

    [[nodiscard]] QString inHome(const char *name) const { return m_home.filePath(QString::fromUtf8(name)); }

    QTemporaryDir m_home;
};

} // namespace

TEST_F(LinuxFolders, areWhereTheUserPutThemAndAlwaysAbsolute) {
    ASSERT_TRUE(QDir().mkpath(inHome(".config")));
    writeFile(inHome(".config/user-dirs.dirs"), "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch/\"\n"
                                                "XDG_PICTURES_DIR=\"/srv/pictures\"\n");
    qunsetenv("XDG_CONFIG_HOME");
    const StandardFolders folders = linuxStandardFolders();
    EXPECT_EQ(folders.home, m_home.path());
    EXPECT_EQ(folders.desktop, inHome("Schreibtisch"));
    EXPECT_EQ(folders.pictures, QStringLiteral("/srv/pictures"));
    EXPECT_EQ(folders.downloads, inHome("Downloads"));
    EXPECT_EQ(folders.trash, QStringList{inHome(".local/share/Trash")});
    EXPECT_EQ(folders.configuration, inHome(".config/tembra"));
    EXPECT_EQ(folders.data, inHome(".local/share/tembra"));
    EXPECT_EQ(folders.cache, inHome(".cache/tembra"));
    EXPECT_TRUE(folders.runtime.startsWith(u'/'));
    EXPECT_EQ(folders.temporary, QDir::tempPath());
}

TEST_F(LinuxFolders, theProgramsOwnAreTogetherWhenAskedForAndTheUsersStay) {
    qputenv("XDG_DATA_HOME", "/srv/data/");
    qputenv("TEMBRA_HOME", "/srv/./own/");
    const StandardFolders folders = linuxStandardFolders();
    EXPECT_EQ(folders.configuration, QStringLiteral("/srv/own/config"));
    EXPECT_EQ(folders.runtime, QStringLiteral("/srv/own/runtime"));
    EXPECT_EQ(folders.temporary, QStringLiteral("/srv/own/temporary"));
    EXPECT_EQ(folders.trash, QStringList{QStringLiteral("/srv/data/Trash")});
    EXPECT_EQ(folders.desktop, inHome("Desktop"));
}
