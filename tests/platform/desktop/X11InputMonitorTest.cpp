#include "platform/linux/desktop/X11InputMonitor.h"

#include "ForeignProgram.h"
#include "support/EventLoop.h"
#include "support/ManualScheduler.h"

#include <QWidget>

#include <gtest/gtest.h>
#include <xcb/xinput.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

using Event = InputMonitor::Event;
using Kind = InputMonitor::Kind;

class X11InputMonitorTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<InputMonitor::Observation> observe() {
        return m_monitor.observe([this](const Event &event) { m_events.push_back(event); });
    }

    [[nodiscard]] bool arrives(std::size_t count) {
        return eventually([this, count] { return m_events.size() >= count; }) && m_events.size() == count;
    }

    // What the program selected of the input of all pointers.
    [[nodiscard]] std::uint32_t selectedEvents() const {
        xcb_connection_t *const xcb = m_connection->xcb();
        const X11Reply<xcb_input_xi_get_selected_events_reply_t> reply(xcb_input_xi_get_selected_events_reply(
            xcb, xcb_input_xi_get_selected_events(xcb, m_connection->root()), nullptr));
        for (auto masks = xcb_input_xi_get_selected_events_masks_iterator(reply.get()); masks.rem > 0;
             xcb_input_event_mask_next(&masks)) {
            if (masks.data->deviceid == XCB_INPUT_DEVICE_ALL_MASTER)
                return *xcb_input_event_mask_mask(masks.data);
        }
        return 0;
    }

    const std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    ManualScheduler m_scheduler;
    X11InputMonitor m_monitor{m_connection, m_scheduler};
    ForeignProgram m_foreign;
    std::vector<Event> m_events;
};

} // namespace

TEST_F(X11InputMonitorTest, clicksInAnotherProgramsWindowAreReported) {
    m_foreign.openWindow({0, 0, 600, 400});
    const auto observation = observe();
    m_foreign.click({300, 200});
    m_foreign.click({300, 200}, 3);
    m_foreign.click({300, 200}, 2);
    ASSERT_TRUE(arrives(3));
    EXPECT_EQ(m_events[0].kind, Kind::leftDown);
    EXPECT_EQ(m_events[1].kind, Kind::leftUp);
    EXPECT_EQ(m_events[2].kind, Kind::rightDown);
    for (const Event &event : m_events) {
        EXPECT_EQ(event.point, (ScreenPoint{300, 200}));
        EXPECT_FALSE(event.local);
    }
    EXPECT_TRUE(eventually([this] { return m_foreign.pressCount() == 3; }));
}

TEST_F(X11InputMonitorTest, clicksInTheProgramsOwnWindowAreLocal) {
    QWidget window;
    window.setGeometry(100, 100, 300, 200);
    window.show();
    ASSERT_TRUE(eventually([&] { return window.isActiveWindow(); }));
    const auto observation = observe();
    m_foreign.click(window.mapToGlobal(QPoint(150, 100)));
    ASSERT_TRUE(arrives(2));
    EXPECT_TRUE(m_events[0].local);
    m_foreign.click({1000, 600});
    ASSERT_TRUE(arrives(4));
    EXPECT_FALSE(m_events[2].local);
}

TEST_F(X11InputMonitorTest, theLeftButtonIsTheOneThatTheUserChose) {
    m_foreign.setButtonOrder({3, 2, 1});
    auto observation = observe();
    m_foreign.click({300, 200}, 3);
    EXPECT_TRUE(arrives(2));
    EXPECT_EQ(m_events.front().kind, Kind::leftDown);
    m_foreign.setButtonOrder({1, 2, 3});
    m_foreign.click({300, 200}, 1);
    EXPECT_TRUE(arrives(4));
    EXPECT_EQ(m_events.back().kind, Kind::leftUp);
}

TEST_F(X11InputMonitorTest, nothingIsSelectedWhileNobodyObserves) {
    EXPECT_EQ(selectedEvents(), 0U);
    auto observation = observe();
    EXPECT_NE(selectedEvents(), 0U);
    EXPECT_EQ(selectedEvents() & XCB_INPUT_XI_EVENT_MASK_RAW_MOTION, 0U);
    observation.reset();
    EXPECT_EQ(selectedEvents(), 0U);
}

TEST_F(X11InputMonitorTest, anObserverMayEndWithinItsOwnCall) {
    int calls = 0;
    std::unique_ptr<InputMonitor::Observation> ended;
    ended = m_monitor.observe([&](const Event &) {
        ++calls;
        ended.reset();
    });
    const auto witness = observe();
    m_foreign.click({300, 200});
    ASSERT_TRUE(arrives(2));
    EXPECT_EQ(calls, 1);
}

TEST_F(X11InputMonitorTest, motionIsADragOnlyWhileTheLeftButtonIsDown) {
    const auto observation = observe();
    m_foreign.movePointer({300, 200});
    m_foreign.press();
    ASSERT_TRUE(arrives(1));
    m_foreign.movePointer({310, 200});
    ASSERT_TRUE(arrives(2));
    EXPECT_EQ(m_events[1].kind, Kind::leftDragged);
    EXPECT_EQ(m_events[1].point, (ScreenPoint{310, 200}));
    m_foreign.release();
    m_foreign.movePointer({320, 200});
    m_foreign.click({320, 200}, 3);
    ASSERT_TRUE(arrives(4));
    EXPECT_EQ(m_events[2].kind, Kind::leftUp);
    EXPECT_EQ(m_events[3].kind, Kind::rightDown);
    EXPECT_EQ(selectedEvents() & XCB_INPUT_XI_EVENT_MASK_RAW_MOTION, 0U);
}

TEST_F(X11InputMonitorTest, aDragIsPassedOnSixtyTimesASecond) {
    const auto observation = observe();
    m_foreign.press();
    ASSERT_TRUE(arrives(1));
    for (int x = 300; x < 320; ++x)
        m_foreign.movePointer({x, 200});
    m_foreign.click({320, 200}, 3);
    ASSERT_TRUE(arrives(3));
    m_scheduler.advance(17ms);
    ASSERT_EQ(m_events.size(), 4U) << "the first at once, and the last when its time has come";
    EXPECT_EQ(m_events[1].kind, Kind::leftDragged);
    EXPECT_EQ(m_events[2].kind, Kind::rightDown);
    EXPECT_EQ(m_events[3].kind, Kind::leftDragged);
    EXPECT_EQ(m_events[3].point, (ScreenPoint{320, 200}));
    m_foreign.release();
    ASSERT_TRUE(arrives(5));
    m_scheduler.advance(1s);
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
}

TEST_F(X11InputMonitorTest, aDragIsOfferedFromTheTakingOfItsSelectionToTheRelease) {
    bool wasOfferedAtRelease = false;
    const auto observation = m_monitor.observe([&](const Event &event) {
        m_events.push_back(event);
        wasOfferedAtRelease = event.kind == Kind::leftUp && m_monitor.isForeignDragOffered();
    });
    m_foreign.press();
    m_foreign.takeSelection("XdndSelection");
    EXPECT_TRUE(eventually([this] { return m_monitor.isForeignDragOffered(); }));
    m_foreign.release();
    ASSERT_TRUE(arrives(2));
    EXPECT_TRUE(wasOfferedAtRelease);
    EXPECT_FALSE(m_monitor.isForeignDragOffered());

    // The next press finds the selection still taken, but drags nothing.
    m_foreign.press();
    ASSERT_TRUE(arrives(3));
    EXPECT_FALSE(m_monitor.isForeignDragOffered());
    m_foreign.release();
    ASSERT_TRUE(arrives(4));
}

TEST_F(X11InputMonitorTest, aDragUnderWayIsKnownWhoeverObserves) {
    m_foreign.press();
    m_foreign.takeSelection("XdndSelection");
    EXPECT_TRUE(eventually([this] { return m_monitor.isForeignDragOffered(); }));
    const auto observation = observe();
    EXPECT_TRUE(m_monitor.isForeignDragOffered());
    m_foreign.release();
    ASSERT_TRUE(arrives(1));
    EXPECT_FALSE(m_monitor.isForeignDragOffered());
}
