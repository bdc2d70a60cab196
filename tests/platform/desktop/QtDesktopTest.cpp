#include "platform/linux/desktop/DesktopServices.h"
#include "support/ManualScheduler.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

using Kind = InputMonitor::Kind;

// The services where Qt runs on a windowing system that we know nothing about.
class QtDesktopTest : public testing::Test {
protected:
    static void send(QWindow *window, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons) {
        const QPointF position(5, 2);
        QMouseEvent event(type, position, window->mapToGlobal(position), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &event);
    }

    // The window that was shown last.
    [[nodiscard]] static QWindow *zoneWindow() { return QGuiApplication::topLevelWindows().constLast(); }

    ManualScheduler m_scheduler;
    DesktopServices m_services = makeDesktopServices(m_scheduler);
};

} // namespace

TEST_F(QtDesktopTest, aZoneIsAWindowOfItsSize) {
    const auto zone = m_services.hotZones->add({100, 0, 200, 4}, {});
    EXPECT_EQ(zoneWindow()->geometry(), QRect(100, 0, 200, 4));
    EXPECT_TRUE(zoneWindow()->isVisible());
    zone->setRect({300, 0, 50, 2});
    EXPECT_EQ(zoneWindow()->geometry(), QRect(300, 0, 50, 2));
}

TEST_F(QtDesktopTest, aZoneMayBeDroppedWithinItsOwnCallback) {
    int presses = 0;
    std::unique_ptr<HotZones::Zone> zone;
    const auto drop = [&] {
        ++presses;
        zone.reset();
    };
    zone = m_services.hotZones->add({100, 0, 200, 4}, {{}, {}, drop});
    QWindow *const window = zoneWindow();
    send(window, QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton);
    EXPECT_EQ(presses, 0);
    send(window, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(zone, nullptr);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(QtDesktopTest, theProgramsOwnClicksAndDragsAreReportedWhileObserved) {
    QWidget window;
    window.setGeometry(50, 60, 200, 100);
    window.show();
    QWindow *const handle = window.windowHandle();
    std::vector<InputMonitor::Event> events;
    auto clicks =
        m_services.inputMonitor->observe([&](const InputMonitor::Event &event) { events.push_back(event); });
    send(handle, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    send(handle, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    send(handle, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    send(handle, QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    send(handle, QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton);
    ASSERT_EQ(events.size(), 4U);
    const std::vector<Kind> kinds{events[0].kind, events[1].kind, events[2].kind, events[3].kind};
    EXPECT_EQ(kinds, (std::vector{Kind::leftDown, Kind::leftDragged, Kind::leftUp, Kind::rightDown}));
    EXPECT_EQ(events[0].point, (ScreenPoint{55, 62}));
    EXPECT_TRUE(events[0].local);

    clicks.reset();
    send(handle, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    send(handle, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(events.size(), 4U);
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
}

TEST_F(QtDesktopTest, handlesMayOutliveTheServices) {
    int calls = 0;
    auto clicks = m_services.inputMonitor->observe([&](const InputMonitor::Event &) { ++calls; });
    auto screens = m_services.displays->observe([&] { ++calls; });
    auto session = m_services.workspace->observe([&](Workspace::Event) { ++calls; });
    m_services = {};
    QWidget window;
    window.show();
    send(window.windowHandle(), QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    clicks.reset();
    screens.reset();
    session.reset();
    EXPECT_EQ(calls, 0);
}

TEST_F(QtDesktopTest, withoutACompositorToAskWindowsMayBeTranslucent) {
    EXPECT_TRUE(m_services.workspace->isComposited());
}

TEST_F(QtDesktopTest, aPanelIsOutsideOfWindowManagement) {
    QWidget panel;
    m_services.panelWindows->prepare(panel);
    EXPECT_NE(panel.internalWinId(), WId{0});
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(panel.windowFlags().testFlag(Qt::BypassWindowManagerHint));
}
