#include "shortcut/ActivationShortcutControl.h"

#include "platform/linux/LinuxBookmarks.h"
#include "settings/AppSettings.h"
#include "settings/SettingsKeys.h"
#include "support/FakeHotKeys.h"
#include "support/MemoryUserDefaults.h"

#include <gmock/gmock.h>

using namespace tembra;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString unavailableSentence =
    QStringLiteral("This shortcut is unavailable. Choose another combination.");

HotKeys::HotKey hotKey(const ActivationShortcut &shortcut) {
    return {shortcut.keyCode, shortcut.modifiers, shortcut.keyLabel};
}

class ActivationShortcutControlTest : public testing::Test {
protected:
    ActivationShortcutControlTest() {
        QObject::connect(&m_control, &ActivationShortcutControl::errorChanged, &m_control,
                         [this] { m_errors.push_back(m_control.error().value_or(QString())); });
    }

    void startSwitchedOn() {
        m_settings.setShortcutEnabled(true);
        m_control.start();
    }
    [[nodiscard]] const ActivationShortcut &stored() const { return m_settings.state().activationShortcut; }

    const ActivationShortcut m_first = ActivationShortcut::standard();
    const ActivationShortcut m_second{96, ActivationShortcut::control, QStringLiteral("F5")};
    const LinuxFileFactsReader m_files;
    LinuxBookmarks m_bookmarks{m_files, {}};
    MemoryUserDefaults m_defaults;
    AppSettings m_settings{m_defaults,
                           {},
                           ScreenshotFolderAccess(m_bookmarks, m_files, {}),
                           {.thumbnailPreference = {[] { return std::nullopt; }, {}}}};
    FakeHotKeys m_hotKeys;
    int m_presses = 0;
    ActivationShortcutControl m_control{m_settings, m_hotKeys, [this] { ++m_presses; }};
    std::vector<QString> m_errors;
};

} // namespace

TEST_F(ActivationShortcutControlTest, theHotKeyIsWhatTheSettingsSay) {
    m_control.start();
    EXPECT_THAT(m_hotKeys.registered(), IsEmpty());
    m_settings.setShortcutEnabled(true);
    m_hotKeys.press();
    EXPECT_EQ(m_presses, 1);
    m_settings.setShowFileNames(false);
    EXPECT_EQ(m_hotKeys.attempts, 1) << "the same one is registered once";
    m_settings.setActivationShortcut(m_second);
    EXPECT_THAT(m_hotKeys.registered(), ElementsAre(hotKey(m_second)));
    m_settings.setShortcutEnabled(false);
    EXPECT_THAT(m_hotKeys.registered(), IsEmpty());
    m_settings.setShortcutEnabled(true);
    m_control.stop();
    EXPECT_THAT(m_hotKeys.registered(), IsEmpty());
}

TEST_F(ActivationShortcutControlTest, aTakenShortcutLeavesTheOneOfBeforeStoredAndWorking) {
    startSwitchedOn();
    m_hotKeys.foreign = {hotKey(m_second)};
    const auto changed = m_control.change(m_second);
    ASSERT_FALSE(changed);
    EXPECT_EQ(changed.error().message, unavailableSentence);
    EXPECT_EQ(m_control.error(), unavailableSentence);
    EXPECT_EQ(stored(), m_first);
    m_hotKeys.press();
    EXPECT_EQ(m_presses, 1);

    m_hotKeys.foreign.clear();
    EXPECT_TRUE(m_control.change(m_second));
    EXPECT_EQ(stored(), m_second);
    EXPECT_THAT(m_hotKeys.registered(), ElementsAre(hotKey(m_second)));
    EXPECT_THAT(m_errors, ElementsAre(unavailableSentence, QString()));
}

TEST_F(ActivationShortcutControlTest, whatIsTakenAtTheStartIsTriedAgainWhenItIsSwitchedOnAgain) {
    m_hotKeys.foreign = {hotKey(m_first)};
    startSwitchedOn();
    EXPECT_EQ(m_control.error(), unavailableSentence);
    m_hotKeys.foreign.clear();
    m_settings.setShowFileNames(false);
    EXPECT_THAT(m_hotKeys.registered(), IsEmpty()) << "not at every change of another setting";
    m_settings.setShortcutEnabled(false);
    EXPECT_EQ(m_control.error(), std::nullopt);
    m_settings.setShortcutEnabled(true);
    EXPECT_THAT(m_hotKeys.registered(), ElementsAre(hotKey(m_first)));
}

TEST_F(ActivationShortcutControlTest, whileItIsOffAnyValidOneIsStoredAndNoneIsAskedFor) {
    m_control.start();
    m_hotKeys.foreign = {hotKey(m_second)};
    EXPECT_TRUE(m_control.change(m_second));
    EXPECT_EQ(stored(), m_second);
    EXPECT_FALSE(m_control.change({0, ActivationShortcut::shift, QStringLiteral("A")}));
    EXPECT_EQ(stored(), m_second);
    EXPECT_EQ(m_hotKeys.attempts, 0);
}

TEST_F(ActivationShortcutControlTest, whileItIsRecordedItIsAKeyLikeEveryOther) {
    startSwitchedOn();
    m_control.setRecording(true);
    EXPECT_THAT(m_hotKeys.registered(), IsEmpty());
    m_hotKeys.foreign = {hotKey(m_second)};
    EXPECT_FALSE(m_control.change(m_second));
    m_control.setRecording(false);
    EXPECT_THAT(m_hotKeys.registered(), ElementsAre(hotKey(m_first)));
    EXPECT_EQ(m_control.error(), unavailableSentence) << "of the choice that was refused";

    m_control.setRecording(true);
    EXPECT_EQ(m_control.error(), std::nullopt);
    EXPECT_TRUE(m_control.change(m_first)) << "the one that was stored before";
    EXPECT_THAT(m_hotKeys.registered(), IsEmpty());
    m_control.setRecording(false);
    EXPECT_THAT(m_hotKeys.registered(), ElementsAre(hotKey(m_first)));
}

TEST_F(ActivationShortcutControlTest, whatTheDesktopTakesAwayIsSaid) {
    startSwitchedOn();
    m_hotKeys.lose({HotKeys::errorDomain, HotKeys::taken, QStringLiteral("Gone."), {}});
    EXPECT_EQ(m_control.error(), unavailableSentence);
    EXPECT_THAT(m_hotKeys.registered(), IsEmpty());
    EXPECT_TRUE(m_control.change(m_first)) << "the user may try the same again";
    EXPECT_EQ(m_control.error(), std::nullopt);
}

TEST_F(ActivationShortcutControlTest, aDesktopWithoutHotKeysSaysSoItself) {
    m_hotKeys.isAvailable = false;
    startSwitchedOn();
    EXPECT_FALSE(m_control.isAvailable());
    EXPECT_EQ(m_control.error(), QStringLiteral("The keyboard says no."));
}
