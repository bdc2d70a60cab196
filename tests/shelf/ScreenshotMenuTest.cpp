#include "shelf/ScreenshotMenu.h"

#include <QMenu>
#include <QStringList>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// Titles, with "-" before disabled ones and "|" for separators.
QStringList items(const QMenu &menu) {
    QStringList items;
    for (const QAction *action : menu.actions())
        items += action->isSeparator()
                     ? QStringLiteral("|")
                     : (action->isEnabled() ? QString() : QStringLiteral("-")) + action->text();
    return items;
}

QAction *item(const QMenu &menu, const char *title) {
    for (QAction *action : menu.actions()) {
        if (action->text() == QString::fromUtf8(title))
            return action;
    }
    return nullptr;
}

ScreenshotMenuActions actions(QStringList &done) {
    return {.copy = [&done] { done += QStringLiteral("copy"); },
            .openInEditor = [&done] { done += QStringLiteral("edit"); },
            .openWith = [&done](const QString &identifier) { done += identifier; },
            .recognize = [&done] { done += QStringLiteral("recognize"); },
            .reveal = [&done] { done += QStringLiteral("reveal"); },
            .togglePins = [&done] { done += QStringLiteral("pin"); },
            .trash = [&done] { done += QStringLiteral("trash"); }};
}

} // namespace

TEST(ScreenshotMenu, offersWhatTheSelectionAllows) {
    QStringList done;
    const auto plain = screenshotMenu({.selectedCount = 2}, actions(done));
    EXPECT_EQ(items(*plain),
              (QStringList{QStringLiteral("Copy"), QStringLiteral("-Open in Editor"),
                           QStringLiteral("Open With"), QStringLiteral("Show in Finder"), QStringLiteral("|"),
                           QStringLiteral("Pin"), QStringLiteral("Move to Trash")}));
    EXPECT_EQ(items(*item(*plain, "Open With")->menu()),
              QStringList{QStringLiteral("-No Compatible Applications")});

    const auto some = screenshotMenu(
        {.selectedCount = 2, .pinnedCount = 1, .canEdit = true, .offersRecognition = true}, actions(done));
    const QString stays = QStringLiteral("-Pinned screenshots stay. Unpin them to move them to Trash.");
    EXPECT_EQ(items(*some).last(), stays);
    EXPECT_TRUE(items(*some).contains(QStringLiteral("Open in Editor")));
    EXPECT_TRUE(items(*some).contains(QStringLiteral("-Image to Text")));
    EXPECT_TRUE(items(*some).contains(QStringLiteral("Move to Trash")));

    const auto all = screenshotMenu({.selectedCount = 1, .pinnedCount = 1}, actions(done));
    EXPECT_EQ(items(*all).mid(5),
              (QStringList{QStringLiteral("Unpin"), QStringLiteral("-Move to Trash"), stays}));
}

TEST(ScreenshotMenu, opensInTheApplicationThatWasChosen) {
    QStringList done;
    const auto menu =
        screenshotMenu({.selectedCount = 1,
                        .applications = {{QStringLiteral("a.desktop"), QStringLiteral("A & B"), {}, true},
                                         {QStringLiteral("c.desktop"), QStringLiteral("C"), {}, false}}},
                       actions(done));
    const QMenu *submenu = item(*menu, "Open With")->menu();
    EXPECT_EQ(items(*submenu), (QStringList{QStringLiteral("A && B (Default)"), QStringLiteral("C")}));
    item(*submenu, "C")->trigger();
    item(*menu, "Copy")->trigger();
    EXPECT_EQ(done, (QStringList{QStringLiteral("c.desktop"), QStringLiteral("copy")}));
}
