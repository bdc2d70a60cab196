#include "platform/linux/AutostartEntry.h"

#include "support/EventLoop.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

using enum LoginItemService::Status;

class AutostartEntryTest : public testing::Test {
protected:
    AutostartEntryTest() {
        makeProgram(m_program);
        QDir().mkpath(m_system);
    }

    static void makeProgram(const QString &path) {
        writeFile(path, "#!/bin/sh\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void writeUserEntry(const QByteArray &content) const {
        QDir().mkpath(m_user);
        writeFile(m_userFile, content);
    }
    [[nodiscard]] QByteArray userEntry() const {
        QFile file(m_userFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] AutostartEntry entry(const QString &program) const {
        return {{m_user, {m_system}}, program};
    }

    const QTemporaryDir m_root;
    const QString m_program = m_root.filePath(QStringLiteral("tembra"));
    const QString m_user = m_root.filePath(QStringLiteral("config/autostart"));
    const QString m_userFile = m_user + QStringLiteral("/app.tembra.Tembra.desktop");
    const QString m_system = m_root.filePath(QStringLiteral("system"));
    const QString m_systemFile = m_system + QStringLiteral("/app.tembra.Tembra.desktop");
    const AutostartEntry m_entry = entry(m_program);
};

} // namespace

TEST_F(AutostartEntryTest, itIsThereFromRegisteringToUnregistering) {
    EXPECT_EQ(m_entry.status(), notRegistered);
    ASSERT_TRUE(m_entry.enable());
    EXPECT_EQ(m_entry.status(), enabled);
    EXPECT_TRUE(userEntry().contains("\nExec=\"" + m_program.toUtf8() + "\" --background\n"));
    ASSERT_TRUE(m_entry.disable());
    EXPECT_EQ(m_entry.status(), notRegistered);
    EXPECT_FALSE(QFile::exists(m_userFile));
    EXPECT_TRUE(m_entry.disable()) << "once more does no harm";
}

TEST_F(AutostartEntryTest, aProgramOfAnyNameIsFoundAgainInWhatIsWritten) {
    for (const char *name : {"a b", "50%", "quote\"`$HOME\\", "ümlaut", "line\nend", "--x"}) {
        const QString program = m_root.filePath(QString::fromUtf8(name));
        makeProgram(program);
        ASSERT_TRUE(entry(program).enable()) << name;
        EXPECT_EQ(entry(program).status(), enabled) << name << userEntry().constData();
        QFile::remove(program);
        EXPECT_EQ(m_entry.status(), notRegistered) << "the entry leads to nothing: " << name;
    }
}

TEST_F(AutostartEntryTest, whatAShellWouldStartIsWhatIsRead) {
    const std::vector<std::pair<QByteArray, std::optional<QString>>> table{
        {R"(tembra --x)", QStringLiteral("tembra")},
        {R"("/a b/c" %U)", QStringLiteral("/a b/c")},
        {R"("/a\\$b\\\\c%%")", QStringLiteral("/a$b\\c%")},
        {R"("/never ends)", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto &[exec, program] : table)
        EXPECT_EQ(AutostartEntry::programOf(exec), program) << exec.constData();
}

TEST_F(AutostartEntryTest, whatTheDesktopSwitchedOffNeedsApprovalUntilItIsRegisteredAgain) {
    ASSERT_TRUE(m_entry.enable());
    const QByteArray written = userEntry();
    for (const char *line :
         {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n", "X-MATE-Autostart-enabled=false\n"}) {
        writeUserEntry(written + line);
        EXPECT_EQ(m_entry.status(), requiresApproval) << line;
        ASSERT_TRUE(m_entry.enable());
        EXPECT_EQ(m_entry.status(), enabled) << line;
    }
}

TEST_F(AutostartEntryTest, theSystemsEntryCountsUntilTheUsersHidesIt) {
    writeFile(m_systemFile, "[Desktop Entry]\nType=Application\nExec=" + m_program.toUtf8() + "\n");
    EXPECT_EQ(m_entry.status(), enabled);
    ASSERT_TRUE(m_entry.disable());
    EXPECT_EQ(m_entry.status(), notRegistered) << "the user did that here, not in the desktop's settings";
    ASSERT_TRUE(m_entry.enable());
    EXPECT_EQ(m_entry.status(), enabled);
    writeUserEntry("[Desktop Entry]\nHidden=true\n");
    EXPECT_EQ(m_entry.status(), requiresApproval);
}

TEST_F(AutostartEntryTest, whatElseTheUserWroteIsKept) {
    writeUserEntry("# mine\n[Desktop Entry]\nName=My shelf\nX-KDE-autostart-after=panel\nHidden=true\n"
                   "Exec=/gone/tembra\n\n[Desktop Action open]\nExec=tembra open\n");
    ASSERT_TRUE(m_entry.enable());
    const QByteArray text = userEntry();
    for (const char *kept : {"# mine\n", "\nName=My shelf\n", "\nX-KDE-autostart-after=panel\n",
                             "\n[Desktop Action open]\nExec=tembra open\n"})
        EXPECT_TRUE(text.contains(kept)) << text.constData();
    EXPECT_FALSE(text.contains("/gone/tembra"));
}

TEST_F(AutostartEntryTest, aLinkLeadsToTheFileThatIsWritten) {
    QDir().mkpath(m_user);
    const QString target = m_root.filePath(QStringLiteral("dotfiles.desktop"));
    writeFile(target, "[Desktop Entry]\nHidden=true\n");
    ASSERT_TRUE(QFile::link(target, m_userFile));
    ASSERT_TRUE(m_entry.enable());
    EXPECT_EQ(m_entry.status(), enabled);
    EXPECT_TRUE(QFileInfo(m_userFile).isSymLink());
    ASSERT_TRUE(m_entry.disable());
    EXPECT_TRUE(QFile::exists(target));
    EXPECT_EQ(m_entry.status(), notRegistered);
}

TEST_F(AutostartEntryTest, whatIsNoEntryIsSaidToBeNoneAndKept) {
    for (const QByteArray &content : {QByteArray("\0\1\2", 3), QByteArray(5 << 20, 'x')}) {
        writeUserEntry(content);
        EXPECT_EQ(m_entry.status(), notRegistered);
        const auto registered = m_entry.enable();
        ASSERT_FALSE(registered);
        EXPECT_TRUE(registered.error().message.contains(m_userFile));
        EXPECT_EQ(userEntry(), content);
    }
    writeUserEntry("no group\n");
    EXPECT_EQ(m_entry.status(), notRegistered);
    ASSERT_TRUE(m_entry.enable());
    EXPECT_EQ(m_entry.status(), enabled);
}

TEST_F(AutostartEntryTest, aFolderThatCannotBeMadeIsNamed) {
    writeFile(m_root.filePath(QStringLiteral("config")));
    const auto registered = m_entry.enable();
    ASSERT_FALSE(registered);
    EXPECT_TRUE(registered.error().message.contains(m_userFile));
}

TEST_F(AutostartEntryTest, aProgramThatIsGoneCannotBeRegistered) {
    QFile::remove(m_program);
    EXPECT_EQ(m_entry.status(), notFound);
    EXPECT_FALSE(m_entry.enable());
    EXPECT_FALSE(QFile::exists(m_userFile));
}

TEST_F(AutostartEntryTest, theDesktopsOwnSettingsAreOpenedWhereItHasSome) {
    const QString opened = m_root.filePath(QStringLiteral("opened"));
    const QString settings = m_root.filePath(QStringLiteral("xfce4-session-settings"));
    makeProgram(settings);
    writeFile(settings, "#!/bin/sh\n: >" + opened.toUtf8() + "\n");
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", m_root.path().toUtf8() + ':' + path);
    qputenv("XDG_CURRENT_DESKTOP", "Xubuntu:XFCE");
    EXPECT_TRUE(AutostartEntry::openDesktopSettings());
    EXPECT_TRUE(eventually([&] { return QFile::exists(opened); }));
    qputenv("XDG_CURRENT_DESKTOP", "None");
    const auto unknown = AutostartEntry::openDesktopSettings();
    ASSERT_FALSE(unknown);
    EXPECT_FALSE(unknown.error().message.isEmpty());
    qunsetenv("XDG_CURRENT_DESKTOP");
    qputenv("PATH", path);
}
