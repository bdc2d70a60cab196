#include "SettingsFixture.h"

#include <QDir>

using namespace tembra;

namespace {

using AppSettingsLoading = SettingsFixture;
using Value = MemoryUserDefaults::Value;

const QString bookmarkKey = FolderPreferences{}.bookmarkKey;
const QString folderKey = QStringLiteral("folder");

Value shortcut(const char *json) {
    return QByteArray(json);
}

} // namespace

TEST_F(AppSettingsLoading, aFreshInstallHasTheDefaultsAndStoresOnlyItsMarks) {
    start();
    const AppSettingsState expected{.screenshotsFolder = std::nullopt,
                                    .hasCompletedOnboarding = false,
                                    .hasCaughtFirstScreenshot = false,
                                    .hasFolderAccess = false,
                                    .screenshotPreviewDisabled = false,
                                    .activationMode = ActivationMode::hover,
                                    .shortcutEnabled = false,
                                    .activationShortcut = {13, 0x0300, QStringLiteral("W")},
                                    .hoverOnTabToOpen = false,
                                    .fileTrayEnabled = true,
                                    .imageToTextEnabled = true,
                                    .displayPreference = DisplayPreference::main,
                                    .screenshotNotifications = true,
                                    .automaticallyCopyScreenshots = true,
                                    .automaticallyOpenEditor = false,
                                    .showFileNames = true,
                                    .groupScreenshotsByDate = false,
                                    .screenshotAutoClean = ScreenshotAutoCleanPeriod::never};
    EXPECT_EQ(m_settings->state(), expected);
    EXPECT_FALSE(m_settings->isFolderAccessLost());
    EXPECT_EQ(m_defaults.values,
              (MemoryUserDefaults::Values{{QStringLiteral("autoCleanSafetyReviewV1"), qint64{2}},
                                          {bookmarkKey + QStringLiteral(".legacyChecked"), true}}));
}

TEST_F(AppSettingsLoading, eachStoredValueIsReadAndForeignOnesGiveTheDefault) {
    struct Case {
        const char *key;
        Value stored;
        std::function<void(AppSettingsState &)> changes = [](AppSettingsState &) {};
    };
    const auto period = [](ScreenshotAutoCleanPeriod value) {
        return [value](AppSettingsState &state) { state.screenshotAutoClean = value; };
    };
    const auto flag = [](bool AppSettingsState::*field, bool value) {
        return [=](AppSettingsState &state) { state.*field = value; };
    };
    using State = AppSettingsState;
    const Case cases[]{
        {"hasCaughtFirstScreenshot", true, flag(&State::hasCaughtFirstScreenshot, true)},
        {"hasCaughtFirstScreenshot", qint64{1}},
        {"hasCompletedOnboarding", QStringLiteral("true")},
        {"activationMode", QStringLiteral("click"),
         [](State &state) { state.activationMode = ActivationMode::click; }},
        {"activationMode", QStringLiteral("tap")},
        {"activationMode", QStringLiteral("Click")},
        {"activationMode", qint64{0}},
        {"shortcutEnabled", true, flag(&State::shortcutEnabled, true)},
        {"shortcutEnabled", QStringLiteral("YES")},
        {"activationShortcut", shortcut(R"({"keyCode":127,"modifiers":6912,"keyLabel":"é"})"),
         [](State &state) {
             state.activationShortcut = {127, 0x1B00, QStringLiteral("é")};
         }},
        {"activationShortcut", shortcut(R"({"keyCode":0,"modifiers":4096,"keyLabel":"A","more":1})"),
         [](State &state) {
             state.activationShortcut = {0, 0x1000, QStringLiteral("A")};
         }},
        {"activationShortcut", shortcut(R"({"keyCode":0,"modifiers":512,"keyLabel":"A"})")},
        {"activationShortcut", shortcut(R"({"keyCode":0,"modifiers":4352.5,"keyLabel":"A"})")},
        {"activationShortcut", shortcut(R"({"keyCode":0,"modifiers":65792,"keyLabel":"A"})")},
        {"activationShortcut", shortcut(R"({"keyCode":200,"modifiers":256,"keyLabel":"A"})")},
        {"activationShortcut", shortcut(R"({"keyCode":-1,"modifiers":256,"keyLabel":"A"})")},
        {"activationShortcut", shortcut(R"({"keyCode":4294967296,"modifiers":256,"keyLabel":"A"})")},
        {"activationShortcut", shortcut(R"({"keyCode":"0","modifiers":256,"keyLabel":"A"})")},
        {"activationShortcut", shortcut(R"({"keyCode":0,"modifiers":256,"keyLabel":""})")},
        {"activationShortcut", shortcut(R"({"keyCode":0,"modifiers":256,"keyLabel":7})")},
        {"activationShortcut", shortcut(R"({"modifiers":256,"keyLabel":"A"})")},
        {"activationShortcut", shortcut("{\"keyCode\":0,\"modif")},
        {"activationShortcut", shortcut("\xff\x00[]")},
        {"activationShortcut", QStringLiteral(R"({"keyCode":0,"modifiers":256,"keyLabel":"A"})")},
        {"hoverOnTabToOpen", true, flag(&State::hoverOnTabToOpen, true)},
        {"hoverOnTabToOpen", qint64{1}},
        {"fileTrayEnabled", false, flag(&State::fileTrayEnabled, false)},
        {"fileTrayEnabled", qint64{0}},
        {"imageToTextEnabled", false, flag(&State::imageToTextEnabled, false)},
        {"imageToTextEnabled", QStringLiteral("NO")},
        {"displayPreference", QStringLiteral("all"),
         [](State &state) { state.displayPreference = DisplayPreference::all; }},
        {"displayPreference", QStringLiteral("pointer"),
         [](State &state) { state.displayPreference = DisplayPreference::all; }},
        {"displayPreference", QStringLiteral("elsewhere")},
        {"displayPreference", true},
        {"screenshotNotifications", false, flag(&State::screenshotNotifications, false)},
        {"automaticallyCopyScreenshots", false, flag(&State::automaticallyCopyScreenshots, false)},
        {"automaticallyCopyScreenshots", QByteArray()},
        {"automaticallyOpenEditor", true, flag(&State::automaticallyOpenEditor, true)},
        {"showFileNames", false, flag(&State::showFileNames, false)},
        {"groupScreenshotsByDate", true, flag(&State::groupScreenshotsByDate, true)},
        {"screenshotAutoCleanDays", qint64{1}, period(ScreenshotAutoCleanPeriod::oneDay)},
        {"screenshotAutoCleanDays", qint64{3}, period(ScreenshotAutoCleanPeriod::threeDays)},
        {"screenshotAutoCleanDays", qint64{7}, period(ScreenshotAutoCleanPeriod::sevenDays)},
        {"screenshotAutoCleanDays", qint64{30}, period(ScreenshotAutoCleanPeriod::thirtyDays)},
        {"screenshotAutoCleanDays", qint64{14}},
        {"screenshotAutoCleanDays", qint64{-1}},
        {"screenshotAutoCleanDays", qint64{1} << 32 | 7},
        {"screenshotAutoCleanDays", QStringLiteral("7")},
        {"screenshotsFolderBookmark", QStringLiteral("/tmp")},
        {"pinnedScreenshotBookmarks", QStringList{QStringLiteral("/tmp")}},
        {"folder", QStringList{QStringLiteral("/tmp")}},
    };
    for (const Case &c : cases) {
        m_defaults.values = {{QString::fromUtf8(c.key), c.stored}};
        start();
        AppSettingsState expected;
        c.changes(expected);
        EXPECT_EQ(m_settings->state(), expected) << c.key << " case " << (&c - cases);
        EXPECT_EQ(m_defaults.values.at(QString::fromUtf8(c.key)), c.stored) << c.key;
    }
}

TEST_F(AppSettingsLoading, anExistingInstallKeepsHowItBehavedUnlessTheUserChose) {
    struct Case {
        const char *name;
        MemoryUserDefaults::Values stored;
        bool hovers;
        bool copies;
    };
    const QString onboarded = settingsKey::hasCompletedOnboarding;
    const QString hover = settingsKey::hoverOnTabToOpen;
    const QString copy = settingsKey::automaticallyCopyScreenshots;
    const Case cases[]{
        {"new", {}, false, true},
        {"onboarding not finished", {{onboarded, false}}, false, true},
        {"onboarding finished", {{onboarded, true}}, true, false},
        {"legacy folder", {{folderKey, QStringLiteral("/nowhere")}}, true, false},
        {"legacy folder though not onboarded",
         {{onboarded, false}, {folderKey, QStringLiteral("/nowhere")}},
         true,
         false},
        {"folder of another type", {{folderKey, true}}, false, true},
        {"both chosen", {{onboarded, true}, {hover, false}, {copy, true}}, false, true},
        {"one chosen", {{onboarded, true}, {copy, true}}, true, true},
        {"a foreign value is a value", {{onboarded, true}, {hover, qint64{1}}}, false, false},
    };
    for (const Case &c : cases) {
        m_defaults.values = c.stored;
        start();
        EXPECT_EQ(m_settings->state().hoverOnTabToOpen, c.hovers) << c.name;
        EXPECT_EQ(m_settings->state().automaticallyCopyScreenshots, c.copies) << c.name;
        const auto stored = m_defaults.values;
        start();
        EXPECT_EQ(m_defaults.values, stored) << c.name;
    }
}

TEST_F(AppSettingsLoading, aNewInstallBehavesAfterItsOnboardingAsBefore) {
    start();
    const AppSettingsState before = m_settings->state();
    EXPECT_TRUE(m_settings->grantScreenshotsFolder(makeFolder("shots"), false, false));
    m_settings->completeOnboarding();
    start();
    EXPECT_TRUE(m_settings->state().hasCompletedOnboarding);
    EXPECT_EQ(m_settings->state().hoverOnTabToOpen, before.hoverOnTabToOpen);
    EXPECT_EQ(m_settings->state().automaticallyCopyScreenshots, before.automaticallyCopyScreenshots);
}

TEST_F(AppSettingsLoading, theSafetyReviewIsOwedOnlyWhereAutoCleanWasOnBeforeIt) {
    struct Case {
        const char *name;
        MemoryUserDefaults::Values stored;
        qint64 review;
    };
    const Case cases[]{
        {"off", {{settingsKey::screenshotAutoCleanDays, qint64{0}}}, 2},
        {"on", {{settingsKey::screenshotAutoCleanDays, qint64{7}}}, 0},
        {"marked already",
         {{settingsKey::screenshotAutoCleanDays, qint64{7}}, {settingsKey::autoCleanSafetyReview, qint64{1}}},
         1},
    };
    for (const Case &c : cases) {
        m_defaults.values = c.stored;
        start();
        EXPECT_EQ(m_defaults.integer(settingsKey::autoCleanSafetyReview), c.review) << c.name;
    }
}

TEST_F(AppSettingsLoading, theLegacyFolderIsAdoptedOnceAndOnlyWithoutABookmark) {
    const QString legacy = makeFolder("Legacy");
    m_defaults.values = {{folderKey, legacy}};
    start();
    EXPECT_EQ(m_settings->state().screenshotsFolder, legacy);
    EXPECT_TRUE(m_settings->state().hasFolderAccess);

    // As with a grant the folder itself is kept, not the link that leads to it.
    ASSERT_TRUE(QFile::link(legacy, path("link")));
    m_defaults.values = {{folderKey, path("link/")}};
    start();
    EXPECT_EQ(m_settings->state().screenshotsFolder, legacy);
    EXPECT_EQ(m_defaults.data(bookmarkKey), bookmark(legacy));

    m_defaults.remove(bookmarkKey);
    start();
    EXPECT_FALSE(m_settings->state().hasFolderAccess);
    EXPECT_FALSE(m_defaults.contains(bookmarkKey));

    const QString granted = makeFolder("Granted");
    m_defaults.values = {{folderKey, legacy}, {bookmarkKey, bookmark(granted)}};
    start();
    EXPECT_EQ(m_settings->state().screenshotsFolder, granted);
}

TEST_F(AppSettingsLoading, aLegacyPathThatIsNoUsableFolderIsLeftAlone) {
    const QString workingFolder = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_root.path()));
    static_cast<void>(makeFolder("relative"));
    writeFile(path("file"));
    for (const QString &legacy : {QString(), QStringLiteral("relative"), path("file"), path("gone"),
                                  makeFolder("Trash/Shots"), QStringLiteral("file:///tmp")}) {
        m_defaults.values = {{folderKey, legacy}};
        start();
        EXPECT_FALSE(m_defaults.contains(bookmarkKey)) << qPrintable(legacy);
        EXPECT_FALSE(m_settings->isFolderAccessLost()) << qPrintable(legacy);
    }
    ASSERT_TRUE(QDir::setCurrent(workingFolder));
}

TEST_F(AppSettingsLoading, aRenamedFolderIsFoundAndItsBookmarkRenewed) {
    const QString old = makeFolder("Old");
    m_defaults.values = {{bookmarkKey, bookmark(old)}};
    const QString renamed = path("New");
    ASSERT_TRUE(QDir().rename(old, renamed));
    start();
    EXPECT_EQ(m_settings->state().screenshotsFolder, renamed);
    EXPECT_EQ(m_defaults.data(bookmarkKey), bookmark(renamed));
}

TEST_F(AppSettingsLoading, aLostFolderKeepsItsBookmarkUntilItIsFoundAgain) {
    const QString folder = makeFolder("Shots");
    const QByteArray stored = bookmark(folder);
    m_defaults.values = {{bookmarkKey, stored}};
    ASSERT_TRUE(QDir().rename(folder, makeFolder("Trash") + QStringLiteral("/Shots")));
    start();
    EXPECT_EQ(m_settings->state().screenshotsFolder, std::nullopt);
    EXPECT_TRUE(m_settings->isFolderAccessLost());
    EXPECT_EQ(m_defaults.data(bookmarkKey), stored);

    m_settings->refreshFolderAccess();
    EXPECT_TRUE(m_updates.empty());
    ASSERT_TRUE(QDir().rename(path("Trash/Shots"), folder));
    m_settings->refreshFolderAccess();
    ASSERT_EQ(m_updates.size(), 1U);
    EXPECT_EQ(m_updates[0].screenshotsFolder, folder);
    EXPECT_TRUE(m_updates[0].hasFolderAccess);
    EXPECT_FALSE(m_settings->isFolderAccessLost());
}

TEST_F(AppSettingsLoading, thePreviewIsDisabledOnlyWhereTheToolSaysOff) {
    for (const std::optional<bool> shown :
         {std::optional<bool>(), std::optional(true), std::optional(false)}) {
        m_tool.tool.showThumbnail = shown;
        start();
        EXPECT_EQ(m_settings->state().screenshotPreviewDisabled, shown == false);
    }
}
