#include "shelf/ShelfHeader.h"
#include "shelf/ShelfTabs.h"
#include "shelf/TabHover.h"
#include "support/ManualScheduler.h"
#include "support/PseudoLocale.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

TEST(ShelfTabs, followTheSettingsInTheirFixedOrder) {
    using enum ShelfTab;
    const auto shown = [](bool tray, bool text) {
        AppSettingsState state;
        state.fileTrayEnabled = tray;
        state.imageToTextEnabled = text;
        return shownTabs(state);
    };
    EXPECT_EQ(shown(true, true), (std::vector{fileTray, screenshots, imageToText}));
    EXPECT_EQ(shown(false, true), (std::vector{screenshots, imageToText}));
    EXPECT_EQ(shown(false, false), (std::vector{screenshots}));
}

class TabHoverTest : public testing::Test {
protected:
    TabHoverTest() {
        hover.canSwitchTo = [this](ShelfTab) { return allowed; };
        hover.onActivate = [this](ShelfTab tab) { activated.push_back(tab); };
    }

    ManualScheduler scheduler;
    TabHover hover{scheduler};
    bool allowed = true;
    std::vector<ShelfTab> activated;
};

TEST_F(TabHoverTest, activatesTheTabOnWhichThePointerRestsForAQuarterSecond) {
    hover.hoverTab(ShelfTab::fileTray);
    scheduler.advance(249ms);
    EXPECT_TRUE(activated.empty());
    scheduler.advance(1ms);
    EXPECT_EQ(activated, (std::vector{ShelfTab::fileTray}));
}

TEST_F(TabHoverTest, neverActivatesATabThatWasLeftOrMayNotSwitch) {
    hover.hoverTab(ShelfTab::fileTray);
    scheduler.advance(200ms);
    hover.hoverTab(ShelfTab::imageToText);
    scheduler.advance(200ms);
    hover.cancelTabHover(ShelfTab::fileTray); // left long ago: the one hovered now stays pending
    scheduler.advance(50ms);
    EXPECT_EQ(activated, (std::vector{ShelfTab::imageToText}));

    hover.hoverTab(ShelfTab::fileTray);
    hover.cancelTabHover();
    allowed = false;
    hover.hoverTab(ShelfTab::screenshots);
    scheduler.advance(1s);
    EXPECT_EQ(activated.size(), 1U);
}

TEST(ShelfHeader, isMirroredWhereLanguagesRunFromRightToLeft) {
    expectMirrorImage([] {
        auto header = std::make_unique<ShelfHeader>(nullptr);
        header->resize(744, ShelfHeader::height);
        header->apply({ShelfTab::fileTray, ShelfTab::screenshots, ShelfTab::imageToText},
                      ShelfTab::screenshots);
        header->offerUndo(QStringLiteral("Move to Trash"));
        return header;
    });
}
