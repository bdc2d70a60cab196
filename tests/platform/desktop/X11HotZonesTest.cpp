#include "platform/linux/desktop/X11HotZones.h"

#include "ForeignProgram.h"
#include "platform/linux/desktop/X11PanelWindows.h"
#include "support/EventLoop.h"

#include <QWidget>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

constexpr ScreenRect place{100, 0, 200, 4};
constexpr QPoint inside(200, 2);
constexpr QPoint outside(200, 60);

class X11HotZonesTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<HotZones::Zone> addZone(const ScreenRect &rect = place) {
        return m_zones.add(rect, {[this] { ++m_enters; }, [this] { ++m_leaves; }, [this] { ++m_presses; }});
    }

    const std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    const std::shared_ptr<X11Stacking> m_stacking = std::make_shared<X11Stacking>(m_connection);
    X11HotZones m_zones{m_connection, m_stacking};
    ForeignProgram m_foreign;
    int m_enters = 0;
    int m_leaves = 0;
    int m_presses = 0;
};

} // namespace

TEST_F(X11HotZonesTest, thePointerIsToldComingPressingAndGoing) {
    const auto zone = addZone();
    m_foreign.movePointer(inside);
    EXPECT_TRUE(eventually([this] { return m_enters == 1; }));
    m_foreign.click(inside, 3);
    m_foreign.click(inside);
    EXPECT_TRUE(eventually([this] { return m_presses == 1; }));
    EXPECT_EQ(m_leaves, 0);
    m_foreign.movePointer(outside);
    EXPECT_TRUE(eventually([this] { return m_leaves == 1; }));
    EXPECT_EQ(m_enters, 1);
    EXPECT_EQ(m_presses, 1);
}

TEST_F(X11HotZonesTest, windowsOpenedAndRaisedLaterDoNotCoverIt) {
    const auto zone = addZone();
    const xcb_window_t first = m_foreign.openWindow({0, 0, 600, 400});
    m_foreign.openWindow({0, 0, 600, 400});
    m_foreign.activate(first);
    m_foreign.movePointer(inside);
    EXPECT_TRUE(eventually([this] { return m_enters == 1; }));
}

TEST_F(X11HotZonesTest, aCoveredZoneComesBackWhenWindowsAreRestacked) {
    const auto zone = addZone();
    const xcb_window_t first = m_foreign.openWindow({0, 0, 600, 400});
    m_foreign.openWindow({0, 0, 600, 400});
    m_foreign.openMenu({0, 0, 600, 400});
    m_foreign.movePointer(inside);
    m_foreign.click(inside);
    ASSERT_TRUE(eventually([this] { return m_foreign.pressCount() == 1; }));
    m_foreign.activate(first);
    EXPECT_TRUE(eventually([this] { return m_enters == 1; }));
    m_foreign.click(inside);
    EXPECT_TRUE(eventually([this] { return m_presses == 1; }));
}

TEST_F(X11HotZonesTest, itLiesBelowThePanels) {
    X11PanelWindows panels(m_connection, m_stacking);
    QWidget panel;
    panels.prepare(panel);
    panel.setGeometry(0, 0, 600, 30);
    panel.show();
    const auto zone = addZone();
    const xcb_window_t first = m_foreign.openWindow({0, 100, 600, 400});
    m_foreign.openWindow({0, 100, 600, 400});
    m_foreign.movePointer(inside);
    ASSERT_TRUE(eventually([&] { return panel.underMouse(); }));
    m_foreign.activate(first);
    m_foreign.click(inside);
    m_foreign.movePointer(outside);
    ASSERT_TRUE(eventually([&] { return !panel.underMouse(); }));
    EXPECT_EQ(m_enters, 0);
    EXPECT_EQ(m_presses, 0);
    panel.hide();
    m_foreign.movePointer(inside);
    EXPECT_TRUE(eventually([this] { return m_enters == 1; }));
}

TEST_F(X11HotZonesTest, itMovesWithItsRectangle) {
    const auto zone = addZone();
    zone->setRect({400, 0, 50, 40});
    m_foreign.movePointer(inside);
    m_foreign.movePointer({449, 39});
    ASSERT_TRUE(eventually([this] { return m_enters == 1; }));
    zone->setRect(place);
    EXPECT_TRUE(eventually([this] { return m_leaves == 1; }));
    EXPECT_EQ(m_enters, 1);
}

TEST_F(X11HotZonesTest, itMayBeDroppedWithinItsOwnCallback) {
    std::unique_ptr<HotZones::Zone> zone;
    const auto witness = addZone({100, 50, 200, 4});
    const auto count = [this, &zone] {
        ++m_presses;
        zone.reset();
    };
    zone = m_zones.add(place, {{}, {}, count});
    m_foreign.click(inside);
    ASSERT_TRUE(eventually([&] { return zone == nullptr; }));
    m_foreign.click(inside);
    m_foreign.movePointer({200, 52});
    EXPECT_TRUE(eventually([this] { return m_enters == 1; }));
    EXPECT_EQ(m_presses, 1);
}
