#include "shelf/HoverController.h"

#include "support/FakeInputMonitor.h"
#include "support/ManualScheduler.h"

#include <gtest/gtest.h>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

constexpr ScreenRect notch{100, 0, 192, 12};
constexpr ScreenRect panel{0, 0, 400, 256};
constexpr ScreenPoint inNotch{150, 5};
constexpr ScreenPoint inPanel{50, 200};
constexpr ScreenPoint farAway{700, 700};

// A shelf that opens and closes as it is told, under a pointer that the test moves.
class HoverControllerTest : public testing::Test {
protected:
    HoverControllerTest() {
        hover.snapshot = [this] {
            HoverSnapshot now = state;
            now.notch = notch;
            now.interactionPanel = state.expanded ? panel : ScreenRect();
            now.visiblePanel = state.compact ? panel : now.interactionPanel;
            return now;
        };
        hover.onSetExpanded = [this](bool expanded) {
            state.expanded = expanded;
            expanded ? ++opened : ++closed;
            if (!expanded)
                hover.didCollapse();
        };
        hover.start();
        scheduler.settle();
    }

    void movePointer(ScreenPoint point) {
        input.pointerPoint = point;
        hover.requestPointerEvaluation();
        scheduler.advance(0s);
    }

    ManualScheduler scheduler;
    FakeInputMonitor input;
    HoverSnapshot state;
    HoverController hover{scheduler, scheduler.uptimeClock(), input};
    int opened = 0;
    int closed = 0;
};

} // namespace

TEST_F(HoverControllerTest, opensInTheNotchAndClosesOnTheNextTurnAfterThePointerLeft) {
    movePointer(farAway);
    EXPECT_EQ(opened, 0);
    movePointer(inNotch);
    EXPECT_TRUE(state.expanded);
    movePointer(inPanel);
    EXPECT_TRUE(state.expanded);
    movePointer(farAway);
    EXPECT_FALSE(state.expanded);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(closed, 1);
}

TEST_F(HoverControllerTest, aReturnBeforeTheNextTurnKeepsItOpen) {
    movePointer(inNotch);
    hover.updateHover(farAway);
    hover.updateHover(inPanel);
    scheduler.advance(1s);
    EXPECT_TRUE(state.expanded);

    hover.updateHover(farAway);
    input.pointerPoint = inPanel;
    scheduler.advance(1s);
    EXPECT_TRUE(state.expanded) << "what counts is where the pointer is when it would close";
}

TEST_F(HoverControllerTest, inClickModeThePointerAloneDoesNothing) {
    int clicks = 0;
    hover.onActivationClick = [&clicks] { ++clicks; };
    state.activationMode = ActivationMode::click;
    movePointer(inNotch);
    EXPECT_EQ(opened, 0);
    input.send(InputMonitor::Kind::leftDown, inNotch);
    EXPECT_EQ(clicks, 1);
    state.expanded = true;
    movePointer(farAway);
    EXPECT_EQ(closed, 0);
}

TEST_F(HoverControllerTest, whatWasOpenedByHandIsClosedByHand) {
    hover.openManually();
    EXPECT_TRUE(state.expanded);
    movePointer(inPanel);
    movePointer(farAway);
    scheduler.advance(1min);
    EXPECT_TRUE(state.expanded);
    state.expanded = false;
    hover.didCollapse();
    movePointer(inNotch);
    EXPECT_TRUE(state.expanded) << "hovering works again";
}

TEST_F(HoverControllerTest, reopensOnlyAfterThePointerLeft) {
    movePointer(inNotch);
    state.expanded = false;
    hover.didCollapse();
    movePointer({inNotch.x + 1, inNotch.y});
    EXPECT_EQ(opened, 1);
    movePointer(farAway);
    movePointer(inNotch);
    EXPECT_EQ(opened, 2);
}

TEST_F(HoverControllerTest, aFolderChooserOrAPreviewKeepsEverythingAsItIs) {
    state.choosingFolder = true;
    movePointer(inNotch);
    hover.openManually();
    EXPECT_EQ(opened, 0);
    state.expanded = true;
    movePointer(farAway);
    EXPECT_EQ(closed, 0);
    state.choosingFolder = false;
    state.previewOpen = true;
    movePointer(farAway);
    EXPECT_EQ(closed, 0);
    state.previewOpen = false;
    movePointer(farAway);
    EXPECT_EQ(closed, 1);
}

TEST_F(HoverControllerTest, aNotificationUnderThePointerOpensTheShelf) {
    state.compact = true;
    movePointer(inPanel);
    EXPECT_TRUE(state.expanded);
}

TEST_F(HoverControllerTest, afterADesktopChangeOpeningWaitsForTheGate) {
    input.pointerPoint = inNotch;
    hover.activeSpaceChanged();
    scheduler.advance(499ms);
    EXPECT_EQ(opened, 0);
    scheduler.advance(101ms);
    EXPECT_EQ(opened, 1);
}

TEST_F(HoverControllerTest, theGateWantsThePointerToRestInAReadyNotch) {
    bool ready = false;
    hover.isOpeningSurfaceReady = [&ready](ScreenPoint) { return ready; };
    input.pointerPoint = inNotch;
    hover.activeSpaceChanged();
    scheduler.advance(600ms);
    EXPECT_EQ(opened, 0);
    ready = true;
    scheduler.advance(100ms);
    EXPECT_EQ(opened, 0) << "ready since a moment only";
    scheduler.advance(200ms);
    EXPECT_EQ(opened, 1);
}

TEST_F(HoverControllerTest, checksAfterADesktopChangeEndAfterTwoSeconds) {
    hover.isOpeningSurfaceReady = [](ScreenPoint) { return false; };
    input.pointerPoint = inNotch;
    hover.activeSpaceChanged();
    scheduler.advance(2s);
    EXPECT_EQ(scheduler.pendingCount(), 0);
    EXPECT_EQ(opened, 0);
}

TEST_F(HoverControllerTest, aPressOnSelectedFilesKeepsTheShelfForThem) {
    movePointer(inNotch);
    hover.hasFileSelection = [] { return true; };
    input.isDragOffered = true;
    input.send(InputMonitor::Kind::leftDown, farAway);
    input.send(InputMonitor::Kind::leftDragged, {farAway.x + 50, farAway.y});
    scheduler.advance(1s);
    EXPECT_TRUE(state.expanded);
    input.send(InputMonitor::Kind::leftUp, farAway);
    scheduler.advance(0s);
    EXPECT_FALSE(state.expanded) << "the files were dropped elsewhere";

    movePointer(inNotch);
    input.send(InputMonitor::Kind::leftDown, farAway);
    input.send(InputMonitor::Kind::leftUp, farAway);
    scheduler.advance(1min);
    EXPECT_TRUE(state.expanded) << "files were selected, and are awaited";
    movePointer(inPanel);
    movePointer(farAway);
    EXPECT_FALSE(state.expanded);
}

TEST_F(HoverControllerTest, whatIsDraggedTowardsTheNotchOpensTheShelfInEveryMode) {
    constexpr ScreenPoint nearNotch{150, 30};
    struct Row {
        ActivationMode mode;
        bool isOffered;
        bool opens;
    };
    for (const Row &row :
         {Row{ActivationMode::hover, true, true}, Row{ActivationMode::click, true, true},
          Row{ActivationMode::hover, false, false}, Row{ActivationMode::click, false, false}}) {
        state = {};
        state.activationMode = row.mode;
        input.isDragOffered = row.isOffered;
        input.send(InputMonitor::Kind::leftDown, farAway);
        input.send(InputMonitor::Kind::leftDragged, {farAway.x + 50, farAway.y});
        EXPECT_FALSE(state.expanded);
        input.send(InputMonitor::Kind::leftDragged, nearNotch);
        EXPECT_EQ(state.expanded, row.opens) << "a drag of a window or of a selection is no drag of files";
        input.send(InputMonitor::Kind::leftUp, farAway);
        hover.didCollapse();
    }
}

TEST_F(HoverControllerTest, nothingHappensOnceItIsStopped) {
    hover.requestPointerEvaluation();
    input.pointerPoint = inNotch;
    hover.stop();
    scheduler.advance(1s);
    hover.updateHover(inNotch);
    EXPECT_EQ(opened, 0);
    EXPECT_FALSE(input.isObserved());
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST(HoverSnapshot, edgesAreHitOneDevicePixelOutside) {
    struct Case {
        double scale;
        double y;
        bool hit;
    };
    for (const Case &c : {Case{1, 13, true}, Case{1, 13.1, false}, Case{2, 12.5, true}, Case{2, 12.6, false},
                          Case{0.5, 13, true}, Case{0.5, 13.1, false}}) {
        HoverSnapshot snapshot;
        snapshot.scale = c.scale;
        snapshot.notch = notch;
        EXPECT_EQ(snapshot.isInActivationArea({150, c.y}), c.hit) << c.scale << " " << c.y;
        snapshot.activationNotches = {ScreenRect{1000, 0, 10, 10}};
        EXPECT_FALSE(snapshot.isInActivationArea({150, 5})) << "the list stands in place of the notch";
    }
    EXPECT_FALSE(HoverSnapshot().keepsOpen({0, 0})) << "an empty rectangle contains nothing";
}

TEST(HoverSnapshot, thePanelsWindowLimitsThePanel) {
    HoverSnapshot snapshot;
    snapshot.interactionPanel = panel;
    EXPECT_TRUE(snapshot.keepsOpen({50, 256.5}));
    snapshot.panelWindow = panel;
    EXPECT_FALSE(snapshot.keepsOpen({50, 256.5})) << "the window is not widened";
}
