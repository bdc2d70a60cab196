#include "platform/linux/desktop/PortalHotKeys.h"

#include "BusService.h"
#include "ShortcutsPortal.h"
#include "platform/linux/desktop/PortalShortcutSession.h"
#include "support/EventLoop.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

class PortalHotKeysTest : public testing::Test {
protected:
    PortalHotKeysTest() {
        // The portal answers on this same thread.
        EXPECT_TRUE(eventually([this] { return m_portal.wasFound; }));
    }

    [[nodiscard]] Result<std::unique_ptr<HotKeys::Registration>> take() {
        return m_hotKeys.registerHotKey(
            m_key, {.onPressed = [this] { ++m_presses; },
                    .onLost = [this](const Error &error) { m_losses.push_back(error.code); }});
    }

    const HotKeys::HotKey m_key{13, 0x0300, QStringLiteral("W")};
    ShortcutsPortal m_portal;
    PortalHotKeys m_hotKeys;
    int m_presses = 0;
    std::vector<int> m_losses;
};

} // namespace

TEST_F(PortalHotKeysTest, theDesktopIsAskedForTheKeyAndTellsItsPresses) {
    EXPECT_TRUE(m_hotKeys.areAvailable());
    EXPECT_EQ(m_portal.application, QStringLiteral("app.tembra.Tembra"));
    auto registration = take();
    ASSERT_TRUE(registration);
    ASSERT_TRUE(eventually([this] { return !m_portal.shortcut.isEmpty(); }));
    EXPECT_EQ(m_portal.properties[QStringLiteral("preferred_trigger")], QStringLiteral("LOGO+SHIFT+w"));
    EXPECT_FALSE(m_portal.properties[QStringLiteral("description")].toString().isEmpty());

    m_portal.press(m_portal.session + QStringLiteral("other"), m_portal.shortcut);
    m_portal.press(m_portal.session, QStringLiteral("other"));
    m_portal.press(m_portal.session, m_portal.shortcut);
    EXPECT_TRUE(eventually([this] { return m_presses > 0; }));
    EXPECT_EQ(m_presses, 1);
    EXPECT_TRUE(m_losses.empty());

    registration->reset();
    EXPECT_TRUE(eventually([this] { return m_portal.session.isEmpty(); })) << "the session ends with it";
}

TEST_F(PortalHotKeysTest, aUserWhoRefusesIsTold) {
    m_portal.agrees = false;
    const auto registration = take();
    ASSERT_TRUE(registration);
    EXPECT_TRUE(eventually([this] { return !m_losses.empty(); }));
    EXPECT_EQ(m_losses, std::vector<int>{HotKeys::taken});
    m_portal.press(m_portal.session, m_portal.shortcut);
    m_portal.closeSession();
    auto another = take();
    EXPECT_TRUE(eventually([this] { return m_losses.size() == 2; }));
    EXPECT_EQ(m_presses, 0);
}

TEST_F(PortalHotKeysTest, aSessionThatTheDesktopEndsIsLost) {
    const auto registration = take();
    ASSERT_TRUE(eventually([this] { return !m_portal.shortcut.isEmpty(); }));
    m_portal.closeSession();
    EXPECT_TRUE(eventually([this] { return !m_losses.empty(); }));
    EXPECT_EQ(m_losses, std::vector<int>{HotKeys::lost});
}

TEST(PortalHotKeys, withoutAPortalThereAreNoHotKeys) {
    BusService portal(QStringLiteral("org.freedesktop.portal.Desktop"),
                      QStringLiteral("/org/freedesktop/portal/desktop"));
    portal.failFromNowOn();
    PortalHotKeys hotKeys;
    EXPECT_TRUE(eventually([&] { return !portal.calls().isEmpty(); }));
    EXPECT_FALSE(hotKeys.areAvailable());
    const auto registration = hotKeys.registerHotKey({}, {});
    ASSERT_FALSE(registration);
    EXPECT_EQ(registration.error().code, HotKeys::unavailable);
}

TEST(PortalHotKeys, aKeyIsWrittenAsThePortalReadsIt) {
    struct Case {
        HotKeys::HotKey key;
        const char *trigger;
    };
    for (const Case &c : {
             Case{{96, 0x1800, QStringLiteral("F5")}, "CTRL+ALT+F5"},
             Case{{49, 0x1b00, QStringLiteral("Space")}, "CTRL+ALT+LOGO+SHIFT+space"},
             Case{{41, 0x0100, QStringLiteral("Ö")}, "LOGO+U00F6"},
             Case{{18, 0x0100, QStringLiteral("1")}, "LOGO+1"},
             Case{{75, 0x0100, QString()}, ""},
         })
        EXPECT_EQ(PortalShortcutSession::trigger(c.key), QString::fromUtf8(c.trigger));
}
