#include "ForeignProgram.h"
#include "Monitors.h"
#include "platform/linux/desktop/DesktopServices.h"
#include "support/EventLoop.h"
#include "support/ManualScheduler.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// Run with and without scaled screens; the pointer is where Qt says that it is.
class ScaledScreensTest : public testing::Test {
protected:
    void SetUp() override {
        splitScreen();
        ASSERT_TRUE(eventually([] { return QGuiApplication::screens().size() == 2; }));
        m_right = QGuiApplication::screens().at(1)->geometry();
        ASSERT_GT(m_right.x(), 0);
    }
    void TearDown() override {
        joinScreen();
        EXPECT_TRUE(eventually([] { return QGuiApplication::screens().size() == 1; }));
    }

    ManualScheduler m_scheduler;
    DesktopServices m_services = makeDesktopServices(m_scheduler);
    ForeignProgram m_foreign;
    QRect m_right;
};

} // namespace

TEST_F(ScaledScreensTest, aZoneLiesWhereItsPointsAre) {
    int enters = 0;
    int leaves = 0;
    const ScreenRect rect{m_right.x() + 30.0, 5, 20, 10};
    const auto zone = m_services.hotZones->add(rect, {[&] { ++enters; }, [&] { ++leaves; }, {}});
    for (const QPoint &corner : {QPoint(30, 5), QPoint(49, 14)}) {
        enters = 0;
        leaves = 0;
        QCursor::setPos(m_right.topLeft() + corner);
        EXPECT_TRUE(eventually([&] { return enters == 1; }));
        QCursor::setPos(m_right.topLeft() + (corner.x() == 30 ? QPoint(29, 4) : QPoint(50, 15)));
        EXPECT_TRUE(eventually([&] { return leaves == 1; }));
    }
}

TEST_F(ScaledScreensTest, theInputRegionIsInPoints) {
    QWidget panel;
    m_services.panelWindows->prepare(panel);
    panel.setGeometry(QRect(m_right.topLeft(), QSize(100, 60)));
    panel.show();
    m_services.panelWindows->setInputRegion(panel, QRegion(10, 10, 20, 20));
    QCursor::setPos(m_right.topLeft() + QPoint(29, 29));
    EXPECT_TRUE(eventually([&] { return panel.underMouse(); }));
    QCursor::setPos(m_right.topLeft() + QPoint(31, 31));
    EXPECT_TRUE(eventually([&] { return !panel.underMouse(); }));
}

TEST_F(ScaledScreensTest, clicksAreReportedInPoints) {
    std::vector<InputMonitor::Event> events;
    const auto observation =
        m_services.inputMonitor->observe([&](const InputMonitor::Event &event) { events.push_back(event); });
    const QPoint position = m_right.topLeft() + QPoint(40, 30);
    QCursor::setPos(position);
    m_foreign.press();
    m_foreign.release();
    ASSERT_TRUE(eventually([&] { return events.size() == 2; }));
    const ScreenPoint expected{static_cast<double>(position.x()), static_cast<double>(position.y())};
    EXPECT_EQ(events.front().point, expected);
    EXPECT_EQ(m_services.inputMonitor->pointer(), expected);
}
