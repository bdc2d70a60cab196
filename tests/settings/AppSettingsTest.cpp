#include "SettingsFixture.h"

#include <thread>

using namespace tembra;

namespace {

using AppSettingsChanges = SettingsFixture;
using AppSettingsPreview = SettingsFixture;
using AppSettingsFolder = SettingsFixture;
using AppSettingsOnboarding = SettingsFixture;
using Value = MemoryUserDefaults::Value;

const QString bookmarkKey = FolderPreferences{}.bookmarkKey;
const QString previousKey = QStringLiteral("previousScreenshotThumbnailPreference");

} // namespace

TEST_F(AppSettingsChanges, eachSetterStoresItsKeyAndEmitsTheWholeStateOnce) {
    using State = AppSettingsState;
    struct Case {
        const char *key;
        Value stored;
        std::function<void(AppSettings &)> set;
        std::function<void(State &)> change;
    };
    const auto flag = [](const char *key, void (AppSettings::*set)(bool), bool State::*field, bool value) {
        return Case{key, value, [=](AppSettings &settings) { (settings.*set)(value); },
                    [=](State &state) { state.*field = value; }};
    };
    const ActivationShortcut keys{8, 0x1800, QStringLiteral("C")};
    const Case cases[]{
        {"activationMode", QStringLiteral("click"),
         [](AppSettings &settings) { settings.setActivationMode(ActivationMode::click); },
         [](State &state) { state.activationMode = ActivationMode::click; }},
        flag("shortcutEnabled", &AppSettings::setShortcutEnabled, &State::shortcutEnabled, true),
        {"activationShortcut", QByteArray(R"({"keyCode":8,"keyLabel":"C","modifiers":6144})"),
         [&keys](AppSettings &settings) { settings.setActivationShortcut(keys); },
         [&keys](State &state) { state.activationShortcut = keys; }},
        flag("hoverOnTabToOpen", &AppSettings::setHoverOnTabToOpen, &State::hoverOnTabToOpen, true),
        flag("fileTrayEnabled", &AppSettings::setFileTrayEnabled, &State::fileTrayEnabled, false),
        flag("imageToTextEnabled", &AppSettings::setImageToTextEnabled, &State::imageToTextEnabled, false),
        {"displayPreference", QStringLiteral("all"),
         [](AppSettings &settings) { settings.setDisplayPreference(DisplayPreference::all); },
         [](State &state) { state.displayPreference = DisplayPreference::all; }},
        flag("screenshotNotifications", &AppSettings::setScreenshotNotifications,
             &State::screenshotNotifications, false),
        flag("automaticallyCopyScreenshots", &AppSettings::setAutomaticallyCopyScreenshots,
             &State::automaticallyCopyScreenshots, false),
        flag("automaticallyOpenEditor", &AppSettings::setAutomaticallyOpenEditor,
             &State::automaticallyOpenEditor, true),
        flag("showFileNames", &AppSettings::setShowFileNames, &State::showFileNames, false),
        flag("groupScreenshotsByDate", &AppSettings::setGroupScreenshotsByDate,
             &State::groupScreenshotsByDate, true),
        {"textRecognitionLanguages", QStringList{QStringLiteral("deu")},
         [](AppSettings &settings) {
             settings.setTextRecognitionLanguages({QStringLiteral("deu")});
         },
         [](State &state) { state.textRecognitionLanguages = {QStringLiteral("deu")}; }},
        {"screenshotAutoCleanDays", qint64{30},
         [](AppSettings &settings) {
             settings.setScreenshotAutoClean(ScreenshotAutoCleanPeriod::thirtyDays);
         },
         [](State &state) { state.screenshotAutoClean = ScreenshotAutoCleanPeriod::thirtyDays; }},
    };
    for (const Case &c : cases) {
        m_defaults.values.clear();
        start();
        auto stored = m_defaults.values;
        stored.insert_or_assign(QString::fromUtf8(c.key), c.stored);
        State expected = m_settings->state();
        c.change(expected);

        c.set(*m_settings);
        const int writes = m_defaults.writes();
        c.set(*m_settings);
        EXPECT_EQ(m_updates, std::vector{expected}) << c.key;
        EXPECT_EQ(m_defaults.writes(), writes) << c.key;
        EXPECT_EQ(m_defaults.values, stored) << c.key;
        start();
        EXPECT_EQ(m_settings->state(), expected) << c.key;
    }
}

TEST_F(AppSettingsChanges, invalidShortcutsAreIgnored) {
    start();
    const int writes = m_defaults.writes();
    const QString label = QStringLiteral("A");
    for (const ActivationShortcut &keys :
         {ActivationShortcut{0, ActivationShortcut::shift, label}, ActivationShortcut{0, 0, label},
          ActivationShortcut{128, ActivationShortcut::command, label},
          ActivationShortcut{0, ActivationShortcut::command | 0x0400, label},
          ActivationShortcut{0, ActivationShortcut::command, QString()}})
        m_settings->setActivationShortcut(keys);
    EXPECT_EQ(m_settings->state(), AppSettingsState());
    EXPECT_TRUE(m_updates.empty());
    EXPECT_EQ(m_defaults.writes(), writes);
}

TEST_F(AppSettingsChanges, switchingAutoCleanOffEndsItsSafetyReview) {
    m_defaults.values = {{settingsKey::screenshotAutoCleanDays, qint64{7}}};
    start();
    m_settings->setScreenshotAutoClean(ScreenshotAutoCleanPeriod::oneDay);
    EXPECT_EQ(m_defaults.integer(settingsKey::autoCleanSafetyReview), 0);
    m_settings->setScreenshotAutoClean(ScreenshotAutoCleanPeriod::never);
    EXPECT_EQ(m_defaults.integer(settingsKey::autoCleanSafetyReview), 2);
    EXPECT_EQ(m_defaults.integer(settingsKey::screenshotAutoCleanDays), 0);
    EXPECT_EQ(m_updates.size(), 2U);
}

TEST(ScreenshotAutoCleanPeriod, isOfferedByItsDays) {
    QStringList titles;
    for (const ScreenshotAutoCleanPeriod period : allScreenshotAutoCleanPeriods)
        titles.append(title(period));
    EXPECT_EQ(titles.join(u'|'), QStringLiteral("Never|1 day|3 days|7 days|30 days"));
}

TEST_F(AppSettingsPreview, switchingItBackOnRestoresWhatTheToolHadBefore) {
    struct Case {
        std::optional<bool> before;
        const char *saved;
    };
    for (const Case &c : {Case{std::nullopt, "default"}, Case{true, "on"}}) {
        m_tool.tool.showThumbnail = c.before;
        start();
        ASSERT_TRUE(m_settings->setScreenshotPreviewDisabled(true));
        EXPECT_EQ(m_tool.tool.showThumbnail, false);
        EXPECT_EQ(m_defaults.string(previousKey), QString::fromUtf8(c.saved));
        start();
        ASSERT_TRUE(m_settings->state().screenshotPreviewDisabled);
        ASSERT_TRUE(m_settings->setScreenshotPreviewDisabled(false));
        ASSERT_TRUE(m_settings->setScreenshotPreviewDisabled(false));
        EXPECT_EQ(m_tool.tool.showThumbnail, c.before);
        EXPECT_FALSE(m_defaults.contains(previousKey));
        ASSERT_EQ(m_updates.size(), 1U);
        EXPECT_FALSE(m_updates[0].screenshotPreviewDisabled);
    }
    // Where the user had it off without us it is shown.
    m_tool.tool.showThumbnail = false;
    start();
    ASSERT_TRUE(m_settings->setScreenshotPreviewDisabled(false));
    EXPECT_EQ(m_tool.tool.showThumbnail, true);
}

TEST_F(AppSettingsPreview, aToolThatDoesNotTakeItLeavesEverythingAsItWas) {
    for (const bool disabled : {true, false}) {
        m_tool.tool.showThumbnail = disabled;
        m_defaults.values.clear();
        if (!disabled)
            m_defaults.setString(previousKey, QStringLiteral("default"));
        start();
        const auto stored = m_defaults.values;
        m_tool.thumbnailError = error();
        const auto result = m_settings->setScreenshotPreviewDisabled(disabled);
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error(), error());
        EXPECT_EQ(m_defaults.values, stored);
        EXPECT_EQ(m_settings->state().screenshotPreviewDisabled, !disabled);
        EXPECT_TRUE(m_updates.empty());
        m_tool.thumbnailError.reset();
    }
}

TEST_F(AppSettingsPreview, aChangeMadeInTheToolIsSeenWhenAsked) {
    start();
    m_tool.tool.showThumbnail = false;
    m_settings->refreshScreenshotPreview();
    m_settings->refreshScreenshotPreview();
    ASSERT_EQ(m_updates.size(), 1U);
    EXPECT_TRUE(m_updates[0].screenshotPreviewDisabled);
}

TEST_F(AppSettingsFolder, aGrantIsStoredAndMadeTheToolsFolderWhenWanted) {
    const QString first = makeFolder("First");
    const QString second = makeFolder("Second");
    m_defaults.values = {{settingsKey::screenshotAutoCleanDays, qint64{7}}};
    start();
    ASSERT_TRUE(m_settings->grantScreenshotsFolder(first + QStringLiteral("/"), false, false));
    EXPECT_TRUE(m_systemFolders.isEmpty());
    EXPECT_EQ(m_settings->state().screenshotAutoClean, ScreenshotAutoCleanPeriod::sevenDays);

    ASSERT_TRUE(m_settings->grantScreenshotsFolder(second, true, true));
    EXPECT_EQ(m_systemFolders, QStringList{second});
    EXPECT_EQ(m_defaults.integer(settingsKey::screenshotAutoCleanDays), 0);
    ASSERT_EQ(m_updates.size(), 2U);
    EXPECT_EQ(m_updates[0].screenshotsFolder, first);
    EXPECT_TRUE(m_updates[0].hasFolderAccess);
    EXPECT_EQ(m_updates[1].screenshotsFolder, second);
    EXPECT_EQ(m_updates[1].screenshotAutoClean, ScreenshotAutoCleanPeriod::never);

    const AppSettingsState granted = m_settings->state();
    start();
    EXPECT_EQ(m_settings->state(), granted);
}

TEST_F(AppSettingsFolder, aGrantThatFailsLeavesEverythingAsItWas) {
    const QString granted = makeFolder("Granted");
    const QString other = makeFolder("Other");
    m_defaults.values = {{bookmarkKey, bookmark(granted)}, {settingsKey::screenshotAutoCleanDays, qint64{7}}};
    start();
    const AppSettingsState state = m_settings->state();
    const auto stored = m_defaults.values;
    m_systemFolderFails = true;
    EXPECT_EQ(m_settings->grantScreenshotsFolder(other, true, true).error(), error());
    EXPECT_FALSE(m_settings->grantScreenshotsFolder(path("gone"), false, true));
    EXPECT_EQ(m_settings->state(), state);
    EXPECT_EQ(m_defaults.values, stored);
    EXPECT_TRUE(m_updates.empty());
    // Nothing of the failed grant comes up with the next change either.
    m_settings->refreshFolderAccess();
    m_settings->setShowFileNames(false);
    EXPECT_EQ(m_settings->state().screenshotsFolder, granted);
}

TEST_F(AppSettingsOnboarding, itsFactsNeedAFolderAndEachRunWaitsForAFreshScreenshot) {
    start();
    m_settings->markFirstScreenshotCaught();
    m_settings->completeOnboarding();
    m_settings->beginOnboarding();
    EXPECT_TRUE(m_updates.empty());

    ASSERT_TRUE(m_settings->grantScreenshotsFolder(m_root.path(), false, false));
    m_updates.clear();
    m_settings->markFirstScreenshotCaught();
    m_settings->markFirstScreenshotCaught();
    ASSERT_EQ(m_updates.size(), 1U);
    EXPECT_EQ(m_defaults.boolean(QStringLiteral("hasCaughtFirstScreenshot")), true);

    m_settings->beginOnboarding();
    EXPECT_EQ(m_defaults.boolean(QStringLiteral("hasCaughtFirstScreenshot")), false);
    EXPECT_FALSE(m_settings->state().hasCaughtFirstScreenshot);

    m_settings->markFirstScreenshotCaught();
    m_settings->completeOnboarding();
    m_settings->completeOnboarding();
    m_settings->beginOnboarding();
    EXPECT_EQ(m_updates.size(), 4U);
    EXPECT_EQ(m_defaults.boolean(QStringLiteral("hasCompletedOnboarding")), true);
    EXPECT_TRUE(m_settings->state().hasCaughtFirstScreenshot);
}

TEST_F(AppSettingsOnboarding, aCallOffTheMainThreadStopsTheProgramEvenWhenNothingWouldChange) {
    start();
    for (const auto fact : {&AppSettings::beginOnboarding, &AppSettings::completeOnboarding,
                            &AppSettings::markFirstScreenshotCaught})
        EXPECT_DEATH(std::thread([&] { (*m_settings.*fact)(); }).join(), "off the main thread");
}
