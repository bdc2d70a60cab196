#include "DesktopHands.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace tembra;

// The window of the settings in the hands of a user.

namespace {

class SettingsHands : public testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(m_tembra.screenshots());
        m_tembra.start();
    }

    [[nodiscard]] bool showsPage(const QString &page) const {
        return m_tembra.waitFor([&](const QJsonObject &status) {
            return status[u"settings"].toObject()[u"page"].toString() == page;
        });
    }
    void open(const QString &page) const {
        ASSERT_EQ(m_tembra.command({QStringLiteral("settings"), page}).exitStatus, 0);
        ASSERT_TRUE(showsPage(page));
    }
    [[nodiscard]] bool shortcutIs(const QString &title, bool isOn) const {
        return m_tembra.waitFor([&](const QJsonObject &status) {
            const QJsonObject shortcut = status[u"shortcut"].toObject();
            return shortcut[u"title"].toString() == title && shortcut[u"enabled"].toBool() == isOn;
        });
    }
    [[nodiscard]] bool isExpanded(bool expected) const {
        return m_tembra.waitFor([&](const QJsonObject &status) {
            return status[u"shelf"].toObject()[u"expanded"].toBool() == expected;
        });
    }

    [[nodiscard]] bool isStored(const QString &key, bool value) const {
        return m_tembra.waitFor([&](const QJsonObject &) {
            QFile file(m_tembra.settingsFile());
            if (!file.open(QIODevice::ReadOnly))
                return false;
            return QJsonDocument::fromJson(file.readAll()).object()[key] == QJsonValue(value);
        });
    }

    TembraProcess m_tembra;
    DesktopHands m_hands{m_tembra};
};

} // namespace

TEST_F(SettingsHands, aShortcutIsRecordedFromTheKeyboardAndWorks) {
    open(QStringLiteral("shortcut"));
    ASSERT_TRUE(m_hands.clickControl(QStringLiteral("Open the shelf with a shortcut")));
    ASSERT_TRUE(shortcutIs(QStringLiteral("⇧⌘W"), true));
    ASSERT_TRUE(m_hands.clickControl(QStringLiteral("Shortcut"), QStringLiteral("push button")));
    // Shift alone makes none; what it is to be replaced with may be the shelf's own.
    m_hands.press({QStringLiteral("shift+a"), QStringLiteral("ctrl+alt+k")});
    ASSERT_TRUE(shortcutIs(QStringLiteral("⌃⌥K"), true));
    m_hands.press({QStringLiteral("ctrl+alt+k")});
    EXPECT_TRUE(isExpanded(true));
    m_hands.press({QStringLiteral("ctrl+alt+k")});
    EXPECT_TRUE(isExpanded(false));
}

TEST_F(SettingsHands, theTabsOfTheShelfComeAndGoWithTheirSwitches) {
    const QString page = QStringLiteral("tray");
    open(page);
    ASSERT_TRUE(m_hands.clickControl(QStringLiteral("Show the file tray")));
    ASSERT_TRUE(isStored(QStringLiteral("fileTrayEnabled"), false));
    EXPECT_NE(m_tembra.command({QStringLiteral("open"), QStringLiteral("--tab"), page}).exitStatus, 0);
    // By the keyboard alone: the search, and the switch that it finds.
    m_hands.press({QStringLiteral("ctrl+f")});
    m_hands.type(QStringLiteral("file tray"));
    m_hands.press({QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("space")});
    EXPECT_TRUE(isStored(QStringLiteral("fileTrayEnabled"), true));
    m_hands.press({QStringLiteral("Escape"), QStringLiteral("Escape")});
    EXPECT_TRUE(showsPage(QString()));
}

TEST_F(SettingsHands, theProgramStartsAtLoginWhileTheSwitchIsOn) {
    const QString entry = m_tembra.environment().value(QStringLiteral("XDG_CONFIG_HOME")) +
                          QStringLiteral("/autostart/app.tembra.Tembra.desktop");
    open(QStringLiteral("general"));
    const QString login = QStringLiteral("Launch at login");
    ASSERT_TRUE(m_hands.clickControl(login));
    EXPECT_TRUE(m_tembra.waitFor([&](const QJsonObject &) { return QFileInfo::exists(entry); }));
    ASSERT_TRUE(m_hands.clickControl(login));
    EXPECT_TRUE(m_tembra.waitFor([&](const QJsonObject &) { return !QFileInfo::exists(entry); }));
}

TEST_F(SettingsHands, autoCleanMovesWhatIsOldOnceTheUserHasAgreed) {
    ASSERT_EQ(m_tembra.tool(QStringLiteral("scrot"), {}).exitStatus, 0);
    const QStringList captures = QDir(m_tembra.screenshots()).entryList(QDir::Files);
    ASSERT_EQ(captures.size(), 1);
    const QString old = m_tembra.screenshots() + u'/' + captures.constFirst();
    ASSERT_EQ(m_tembra.command({QStringLiteral("quit")}).exitStatus, 0);
    ASSERT_TRUE(m_tembra.waitForEnd());
    m_tembra.startInDays(2);
    const auto has = [this](int days) {
        return m_tembra.waitFor([=](const QJsonObject &status) {
            return status[u"autoClean"].toObject()[u"days"].toInt() == days;
        });
    };
    open(QStringLiteral("screenshots"));
    const QString period = QStringLiteral("Move old screenshots to Trash");
    const auto choose = [&] {
        ASSERT_TRUE(m_hands.clickControl(period));
        m_hands.press({QStringLiteral("Down"), QStringLiteral("Return")});
        ASSERT_TRUE(m_hands.sees(QStringLiteral("Enable auto-clean?")));
    };
    choose();
    m_hands.press({QStringLiteral("Escape")});
    EXPECT_TRUE(has(0));
    EXPECT_TRUE(QFileInfo::exists(old));
    choose();
    ASSERT_TRUE(m_hands.clickControl(QStringLiteral("Enable")));
    EXPECT_TRUE(has(1));
    EXPECT_TRUE(m_tembra.waitFor([&](const QJsonObject &) { return !QFileInfo::exists(old); }));
}
