#include "shelf/StatusMenu.h"

#include <QAction>
#include <QMenu>

#include <gtest/gtest.h>

using namespace tembra;

TEST(StatusMenu, updatesCanBeCheckedForExactlyWhileThatCanBeDone) {
    bool canCheck = false;
    int checks = 0;
    const StatusMenuActions actions{.checkForUpdates = [&] { ++checks; },
                                    .canCheckForUpdates = [&] { return canCheck; }};
    const auto menu = statusMenu(actions);
    auto *item = menu->findChild<QAction *>(QStringLiteral("checkForUpdates"));
    ASSERT_TRUE(item);
    EXPECT_FALSE(item->isEnabled());
    canCheck = true;
    Q_EMIT menu->aboutToShow();
    EXPECT_TRUE(item->isEnabled());
    item->trigger();
    EXPECT_EQ(checks, 1);
    canCheck = false;
    validateStatusMenu(*menu, actions);
    EXPECT_FALSE(item->isEnabled());
    EXPECT_FALSE(statusMenu({})->findChild<QAction *>(QStringLiteral("checkForUpdates"))->isEnabled());
}
