#include "editor/chrome/EditorSidebar.h"
#include "editor/chrome/EditorSidebarDelegate.h"
#include "support/FakeThumbnails.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tembra {
namespace {

QString path(int number) {
    return QStringLiteral("/shots/%1.png").arg(number);
}

std::vector<EditorSidebarItem> items(int count, const QString &revision = {}) {
    std::vector<EditorSidebarItem> result;
    for (int number = 0; number < count; ++number)
        result.push_back({.path = path(number), .name = QString::number(number), .revision = revision});
    return result;
}

struct Sidebar : testing::Test {
    Sidebar() {
        sidebar.resize(EditorSidebar::barWidth, 10 + 3 * EditorSidebarDelegate::pitch);
        sidebar.apply(items(1'000));
        sidebar.setCurrent(path(0));
        sidebar.show();
        QApplication::processEvents();
    }

    [[nodiscard]] QStringList choices() const {
        QStringList paths;
        for (const auto &arguments : chosen)
            paths += arguments[0].toString();
        return paths;
    }

    FakeThumbnails thumbnails;
    EditorSidebar sidebar{thumbnails};
    QSignalSpy chosen{&sidebar, &EditorSidebar::chosen};
};

TEST_F(Sidebar, keysAndClicksChoose) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home})
        QTest::keyClick(&sidebar, key);
    QTest::mouseClick(sidebar.viewport(), Qt::LeftButton, {}, {60, 8 + EditorSidebarDelegate::pitch + 30});
    EXPECT_EQ(choices(), (QStringList{path(1), path(2), path(1), path(999), path(0), path(1)}));
}

TEST_F(Sidebar, whatTheProgramSetsIsNotTold) {
    sidebar.setCurrent(path(5));
    sidebar.apply(items(20));
    EXPECT_EQ(sidebar.currentIndex().row(), 5);
    sidebar.apply(items(3));
    EXPECT_FALSE(sidebar.currentIndex().isValid());
    sidebar.apply(items(20));
    EXPECT_EQ(sidebar.currentIndex().row(), 5) << "it is back";
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(Sidebar, picturesAreAskedForOnlyInView) {
    EXPECT_EQ(thumbnails.waiting(), (QStringList{path(0), path(1), path(2), path(3)}));
    sidebar.verticalScrollBar()->setValue(10 * EditorSidebarDelegate::pitch);
    EXPECT_FALSE(thumbnails.waiting().contains(path(0))) << "out of view";
    EXPECT_TRUE(thumbnails.waiting().contains(path(10)));
    EXPECT_LE(thumbnails.waiting().size(), 5);
    sidebar.hide();
    EXPECT_TRUE(thumbnails.waiting().isEmpty());
}

TEST_F(Sidebar, aPictureIsKeptUntilItsFileChanges) {
    ASSERT_TRUE(thumbnails.answer(path(0)));
    ASSERT_TRUE(thumbnails.fail(path(1)));
    sidebar.verticalScrollBar()->setValue(10 * EditorSidebarDelegate::pitch);
    sidebar.verticalScrollBar()->setValue(0);
    EXPECT_FALSE(thumbnails.waiting().contains(path(0)));
    EXPECT_FALSE(thumbnails.waiting().contains(path(1))) << "asking again would not help";
    auto changed = items(1'000);
    changed[0].revision = QStringLiteral("2");
    sidebar.apply(changed);
    EXPECT_TRUE(thumbnails.waiting().contains(path(0)));
    EXPECT_FALSE(thumbnails.waiting().contains(path(1)));
}

TEST_F(Sidebar, aPictureIsShownWhenItComes) {
    const auto middle = [this] { return sidebar.viewport()->grab().toImage().pixelColor(40, 40); };
    ASSERT_NE(middle(), QColor(Qt::red));
    thumbnails.answer(path(0), Qt::red, {128, 84});
    EXPECT_EQ(middle(), QColor(Qt::red));
}

TEST_F(Sidebar, assistiveProgramsReadTheTiles) {
    auto marked = items(3);
    marked[1].isEdited = true;
    marked[2].isUnsaved = true;
    sidebar.apply(marked);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&sidebar);
    ASSERT_EQ(list->childCount(), 3);
    EXPECT_EQ(list->role(), QAccessible::List);
    const QString descriptions[] = {QString(), QStringLiteral("Edited"), QStringLiteral("Edited, not saved")};
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(list->child(row)->role(), QAccessible::ListItem);
        EXPECT_EQ(list->child(row)->text(QAccessible::Name), marked[static_cast<size_t>(row)].name);
        EXPECT_EQ(list->child(row)->text(QAccessible::Description), descriptions[row]);
    }
    EXPECT_TRUE(list->child(0)->state().selected);
}

} // namespace
} // namespace tembra
