#include "platform/linux/LinuxStandardFolders.h"

#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

using namespace tembra;

namespace {

// A user whose home is a folder of the test.
class LinuxFolders : public testing::Test {
protected:
    LinuxFolders() {
        set("HOME", QFile::encodeName(m_home.path()));
        for (const char *name :
             {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TEMBRA_HOME"})
            set(name, {});
    }
    ~LinuxFolders() override {
        for (const auto &[name, value] : m_before)
            assign(name, value);
    }

    // Null unsets it.
    void set(const char *name, const QByteArray &value) {
        m_before.try_emplace(name, qgetenv(name));
        assign(name, value);
    }
    [[nodiscard]] QString inHome(const char *name) const { return m_home.filePath(QString::fromUtf8(name)); }

private:
    static void assign(const QByteArray &name, const QByteArray &value) {
        if (value.isNull())
            qunsetenv(name.constData());
        else
            qputenv(name.constData(), value);
    }

    QTemporaryDir m_home;
    std::map<QByteArray, QByteArray> m_before;
};

} // namespace

TEST_F(LinuxFolders, areWhereTheUserPutThem) {
    ASSERT_TRUE(QDir().mkpath(inHome(".config")));
    writeFile(inHome(".config/user-dirs.dirs"), "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch/\"\n"
                                                "XDG_PICTURES_DIR=\"/srv/pictures\"\n");
    const StandardFolders folders = linuxStandardFolders();
    EXPECT_EQ(folders.home, QDir::cleanPath(inHome("")));
    EXPECT_EQ(folders.desktop, inHome("Schreibtisch"));
    EXPECT_EQ(folders.pictures, QStringLiteral("/srv/pictures"));
    EXPECT_EQ(folders.downloads, inHome("Downloads"));
    EXPECT_EQ(folders.trash, QStringList{inHome(".local/share/Trash")});
    EXPECT_EQ(folders.configuration, inHome(".config/tembra"));
    EXPECT_EQ(folders.data, inHome(".local/share/tembra"));
    EXPECT_EQ(folders.cache, inHome(".cache/tembra"));
}

TEST_F(LinuxFolders, theProgramsOwnAreTogetherWhenAskedForAndTheUsersStay) {
    set("XDG_DATA_HOME", "/srv/data/");
    set("TEMBRA_HOME", "/srv/./own/");
    const StandardFolders folders = linuxStandardFolders();
    EXPECT_EQ(folders.configuration, QStringLiteral("/srv/own/config"));
    EXPECT_EQ(folders.data, QStringLiteral("/srv/own/data"));
    EXPECT_EQ(folders.cache, QStringLiteral("/srv/own/cache"));
    EXPECT_EQ(folders.runtime, QStringLiteral("/srv/own/runtime"));
    EXPECT_EQ(folders.trash, QStringList{QStringLiteral("/srv/data/Trash")});
    EXPECT_EQ(folders.desktop, inHome("Desktop"));
}

TEST_F(LinuxFolders, allAreAbsoluteWhateverTheEnvironmentSays) {
    set("XDG_RUNTIME_DIR", "relative");
    set("XDG_DATA_HOME", "relative");
    set("XDG_CONFIG_HOME", "relative");
    set("XDG_CACHE_HOME", "relative");
    const StandardFolders folders = linuxStandardFolders();
    EXPECT_EQ(folders.configuration, inHome(".config/tembra"));
    EXPECT_EQ(folders.data, inHome(".local/share/tembra"));
    EXPECT_EQ(folders.cache, inHome(".cache/tembra"));
    EXPECT_EQ(folders.trash, QStringList{inHome(".local/share/Trash")});
    EXPECT_TRUE(folders.runtime.startsWith(u'/'));
}
