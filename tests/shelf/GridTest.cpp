#include "GridShots.h"
#include "controls/ShelfScroller.h"
#include "shelf/EdgeFades.h"
#include "shelf/FileCollectionView.h"
#include "shelf/FileThumbnailCache.h"
#include "shelf/NativeScreenshotCell.h"
#include "shelf/NativeScreenshotGrid.h"
#include "shelf/ScreenshotScrollView.h"
#include "shelf/ScreenshotTiles.h"
#include "support/FakeFileFacts.h"
#include "support/FakeThumbnails.h"

#include <QScrollBar>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

using Numbers = std::vector<int>;
constexpr QSize gridSize(744, 212);
constexpr int columns = 6;

} // namespace

// The grid in a window, driven by events that come to the window.
class GridTest : public testing::Test {
protected:
    GridTest() {
        grid.resize(gridSize);
        QObject::connect(&grid, &FileGrid::selectionChanged, [this] { ++selectionChanges; });
        QObject::connect(&grid, &FileGrid::dragRequested, [this] { ++drags; });
        QObject::connect(&grid, &FileGrid::activated,
                         [this](const FileTile &shot) { activated = gridNumbers({shot}); });
        QObject::connect(&grid, &FileGrid::contextMenuRequested,
                         [this](const FileTile &shot) { menuOf = gridNumbers({shot}); });
        QObject::connect(&grid, &FileGrid::backgroundMenuRequested, [this] { menuOf = {-1}; });
    }

    void open(FileGridState state) {
        grid.render(std::move(state));
        grid.show();
        grid.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
        grid.takeFocus();
    }

    [[nodiscard]] const FileCollectionView &view() { return grid.collectionView(); }
    [[nodiscard]] QScrollBar &bar() { return *grid.scrollView().verticalScrollBar(); }
    [[nodiscard]] QPoint inWindow(QPoint point) { return view().mapTo(&grid, point); }
    [[nodiscard]] QPoint middle(int index) { return inWindow(view().gridLayout().itemRect(index).center()); }
    [[nodiscard]] Numbers selected() const { return gridNumbers(grid.selectedTiles()); }

    void click(int index, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(grid.windowHandle(), Qt::LeftButton, modifiers, middle(index));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(grid.windowHandle(), key, modifiers);
    }

    FakeThumbnails thumbnails;
    FakeFileFacts files;
    FileThumbnailCache cache;
    NativeScreenshotGrid grid{FilePresentation{thumbnails, files, cache}};
    int selectionChanges = 0;
    int drags = 0;
    Numbers activated;
    Numbers menuOf;
};

TEST_F(GridTest, clicksSelect) {
    open(gridState({12}));
    struct Row {
        int index;
        Qt::KeyboardModifiers modifiers;
        Numbers expected;
    };
    const std::vector<Row> table{
        {1, {}, {1}},
        {3, Qt::ShiftModifier, {1, 2, 3}},
        {2, Qt::ControlModifier, {1, 3}},
        {5, Qt::ControlModifier, {1, 3, 5}},
        {4, Qt::ShiftModifier, {4, 5}},
        {5, {}, {5}},
    };
    for (const Row &row : table) {
        click(row.index, row.modifiers);
        EXPECT_EQ(selected(), row.expected) << row.index;
        for (const auto &[index, cell] : view().cells().shown())
            EXPECT_EQ(cell->isSelected(), std::ranges::count(row.expected, index) > 0) << index;
    }
    EXPECT_EQ(selectionChanges, 6);

    const QPoint margin = inWindow({10, 50});
    QTest::mouseClick(grid.windowHandle(), Qt::LeftButton, Qt::ControlModifier, margin);
    EXPECT_EQ(selected(), (Numbers{5})) << "a click that missed while selecting several";
    QTest::mouseClick(grid.windowHandle(), Qt::LeftButton, {}, margin);
    EXPECT_EQ(selected(), Numbers());
    press(Qt::Key_Return);
    EXPECT_EQ(activated, Numbers());
}

TEST_F(GridTest, ctrlSelectsSomeApartFromEachOther) {
    open(gridState({9}));
    struct Row {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        Numbers expected;
    };
    const std::vector<Row> table{{Qt::Key_Home, {}, {0}},
                                 {Qt::Key_Right, Qt::ControlModifier, {0}},
                                 {Qt::Key_Right, Qt::ControlModifier, {0}},
                                 {Qt::Key_Space, Qt::ControlModifier, {0, 2}},
                                 {Qt::Key_Down, Qt::ControlModifier, {0, 2}},
                                 {Qt::Key_Space, Qt::ControlModifier, {0, 2, 8}},
                                 {Qt::Key_Space, Qt::ControlModifier, {0, 2}},
                                 {Qt::Key_Left, Qt::ShiftModifier, {7, 8}}};
    for (const Row &row : table) {
        press(row.key, row.modifiers);
        EXPECT_EQ(selected(), row.expected) << row.key;
    }
}

TEST_F(GridTest, aBandSelectsWhatItTouches) {
    open(gridState({9}));
    QWindow *window = grid.windowHandle();
    const QPoint start = inWindow({10, 60});
    const auto draw = [&](QPoint to, Qt::KeyboardModifiers modifiers) {
        QTest::mousePress(window, Qt::LeftButton, modifiers, start);
        QTest::mouseMove(window, middle(0));
        QTest::mouseMove(window, to);
        QTest::mouseRelease(window, Qt::LeftButton, modifiers, to);
    };
    draw(middle(2), {});
    EXPECT_EQ(selected(), (Numbers{0, 1, 2}));
    draw(middle(0), {});
    EXPECT_EQ(selected(), (Numbers{0})) << "what it leaves is given up again";
    click(4);
    draw(middle(1), Qt::ControlModifier);
    EXPECT_EQ(selected(), (Numbers{0, 1, 4})) << "with Ctrl the others stay";
    EXPECT_EQ(drags, 0);
}

TEST_F(GridTest, aPressOnOneOfSeveralSelectedNarrowsOnlyWhenItEndsWithoutADrag) {
    open(gridState({6}));
    QWindow *window = grid.windowHandle();
    click(1);
    click(3, Qt::ShiftModifier);
    QTest::mousePress(window, Qt::LeftButton, {}, middle(2));
    EXPECT_EQ(selected(), (Numbers{1, 2, 3}));
    QTest::mouseRelease(window, Qt::LeftButton, {}, middle(2));
    EXPECT_EQ(selected(), (Numbers{2}));

    click(4, Qt::ShiftModifier);
    QTest::mousePress(window, Qt::LeftButton, {}, middle(3));
    QTest::mouseMove(window, middle(3) + QPoint(2, 2));
    EXPECT_EQ(drags, 0) << "a trembling hand drags nothing";
    QTest::mouseMove(window, middle(3) + QPoint(40, 0));
    QTest::mouseMove(window, middle(3) + QPoint(80, 0));
    EXPECT_EQ(drags, 1);
    QTest::mouseRelease(window, Qt::LeftButton, {}, middle(4));
    EXPECT_EQ(selected(), (Numbers{2, 3, 4}));

    QTest::mousePress(window, Qt::LeftButton, {}, middle(0));
    QTest::mouseMove(window, middle(1));
    EXPECT_EQ(drags, 2) << "one that was not selected is dragged alone";
    EXPECT_EQ(selected(), (Numbers{0}));
    QTest::mouseRelease(window, Qt::LeftButton, {}, middle(1));
}

TEST_F(GridTest, aRightClickSelectsWhatItsMenuIsAbout) {
    open(gridState({6}));
    const auto rightClick = [&](QPoint point) {
        QTest::mouseClick(grid.windowHandle(), Qt::RightButton, {}, point);
        return std::exchange(menuOf, {});
    };
    EXPECT_EQ(rightClick(middle(2)), (Numbers{2}));
    EXPECT_EQ(selected(), (Numbers{2}));
    click(4, Qt::ShiftModifier);
    EXPECT_EQ(rightClick(middle(3)), (Numbers{3}));
    EXPECT_EQ(selected(), (Numbers{2, 3, 4})) << "one of the selected ones speaks for all of them";
    EXPECT_EQ(rightClick(inWindow({10, 50})), (Numbers{-1}));
    EXPECT_EQ(rightClick(middle(0)), (Numbers{0}));
    EXPECT_EQ(selected(), (Numbers{0}));
}

TEST_F(GridTest, aDoubleClickOrReturnOpens) {
    open(gridState({6}));
    QTest::mouseDClick(grid.windowHandle(), Qt::LeftButton, {}, middle(3));
    EXPECT_EQ(std::exchange(activated, {}), (Numbers{3}));
    press(Qt::Key_Left);
    press(Qt::Key_Enter);
    EXPECT_EQ(std::exchange(activated, {}), (Numbers{2}));
    QTest::mouseDClick(grid.windowHandle(), Qt::LeftButton, Qt::ControlModifier, middle(4));
    EXPECT_EQ(activated, Numbers());
    EXPECT_EQ(selected(), (Numbers{2})) << "two clicks that toggle";
}

TEST_F(GridTest, keysMoveAndExtendTheSelectionAndKeepItInSight) {
    open(gridState({8, 30}, true));
    struct Row {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        Numbers expected;
    };
    const std::vector<Row> table{
        {Qt::Key_Right, {}, {0}},
        {Qt::Key_Right, {}, {1}},
        {Qt::Key_Down, {}, {7}},
        {Qt::Key_Down, {}, {9}},
        {Qt::Key_Up, Qt::ShiftModifier, {7, 8, 9}},
        {Qt::Key_Left, Qt::ShiftModifier, {6, 7, 8, 9}},
        {Qt::Key_Right, Qt::KeypadModifier, {7}},
        {Qt::Key_PageDown, {}, {9}},
        {Qt::Key_End, {}, {37}},
        {Qt::Key_PageDown, {}, {37}},
        {Qt::Key_Left, Qt::ShiftModifier, {36, 37}},
        {Qt::Key_PageUp, {}, {30}},
        {Qt::Key_Home, {}, {0}},
    };
    for (const Row &row : table) {
        press(row.key, row.modifiers);
        EXPECT_EQ(selected(), row.expected) << row.key;
        const int current = view().currentIndex().value_or(-1);
        const QRect seen = QRect(inWindow(view().gridLayout().itemRectWithTitle(current).topLeft()),
                                 view().gridLayout().itemRectWithTitle(current).size());
        EXPECT_TRUE(grid.rect().contains(seen)) << row.key << " leads to " << current;
    }
    EXPECT_EQ(bar().value(), 0) << "the first title is in sight again";
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected().size(), 38U);
    grid.clearSelection();
    EXPECT_TRUE(QMetaObject::invokeMethod(&grid.collectionView(), "selectAll")) << "as the menu does";
    EXPECT_EQ(selected().size(), 38U);
}

TEST_F(GridTest, aPageIsAsManyRowsAsCanBeSeen) {
    FileGridState state = gridState({60});
    state.showFileNames = false;
    open(state);
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    EXPECT_EQ(selected(), (Numbers{2 * columns}));
    press(Qt::Key_PageUp);
    EXPECT_EQ(selected(), (Numbers{0}));
}

TEST_F(GridTest, anEmptyGridAnswersKeysAndClicksWithNothing) {
    open({});
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageUp, Qt::Key_Return})
        press(key);
    press(Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(grid.windowHandle(), Qt::LeftButton, {}, {100, 60});
    grid.revealSelection();
    EXPECT_EQ(selected(), Numbers());
    EXPECT_EQ(activated, Numbers());
}

TEST_F(GridTest, theSelectionFollowsItsShotsThroughNewStates) {
    open(gridState({8}));
    click(2);
    click(4, Qt::ControlModifier);
    FileGridState state = gridState({8});
    auto &shots = state.sections.front().tiles;
    shots.insert(shots.begin(), gridShot(50));
    shots[3].path = QStringLiteral("/shots/renamed.png");
    selectionChanges = 0;
    grid.render(state);
    EXPECT_EQ(selected(), (Numbers{2, 4}));
    EXPECT_EQ(selectionChanges, 0);
    EXPECT_TRUE(grid.selectedPaths().contains(QStringLiteral("/shots/renamed.png")));
    EXPECT_TRUE(view().cells().shown().at(3)->isSelected());

    shots.erase(shots.begin() + 3);
    grid.render(state);
    EXPECT_EQ(selected(), (Numbers{4}));
    EXPECT_EQ(selectionChanges, 1);
}

TEST_F(GridTest, oneHundredThousandShotsNeedOnlyTheCellsThatCanBeSeen) {
    constexpr int count = 100'000;
    open(gridState({count}));
    constexpr int mostSeen = columns * (gridSize.height() / 120 + 2);
    const auto cells = [this] { return grid.findChildren<NativeScreenshotCell *>(); };
    const auto first = cells();
    for (int step = 0; step <= 100; ++step) {
        bar().setValue(static_cast<int>(qint64{bar().maximum()} * step / 100));
        const auto &shown = view().cells().shown();
        ASSERT_LE(cells().size(), mostSeen);
        ASSERT_EQ(thumbnails.waiting().size(), static_cast<qsizetype>(shown.size())) << "only what is seen";
        for (const auto &[index, cell] : shown) {
            ASSERT_TRUE(cell->isVisible());
            ASSERT_EQ(cell->path(), gridShot(index).path);
            ASSERT_TRUE(cell->geometry().contains(view().gridLayout().itemRect(index)));
        }
    }
    EXPECT_TRUE(view().cells().shown().contains(count - 1));
    for (const NativeScreenshotCell *cell : first)
        EXPECT_TRUE(cells().contains(cell)) << "cells are used again";
    const QRect last = view().gridLayout().itemRect(count - 1);
    EXPECT_EQ(inWindow(last.bottomLeft()).y() + 1 + 8, gridSize.height());
}

TEST_F(GridTest, fadesOutTheEdgesBehindWhichThereIsMore) {
    const auto opacities = [this] {
        const EdgeFades &fades = grid.scrollView().fades();
        return std::pair(fades.topOpacity(), fades.bottomOpacity());
    };
    open(gridState({4}));
    EXPECT_EQ(opacities(), std::pair(0.0, 0.0));
    EXPECT_FALSE(grid.scrollView().scroller().isVisible());
    grid.render(gridState({60}));
    EXPECT_EQ(opacities(), std::pair(0.0, 1.0));
    EXPECT_TRUE(grid.scrollView().scroller().isVisible());
    bar().setValue(EdgeFades::topHeight / 2);
    EXPECT_EQ(opacities(), std::pair(0.5, 1.0));
    bar().setValue(bar().maximum());
    EXPECT_EQ(opacities(), std::pair(1.0, 0.0));
    grid.scrollToTop();
    EXPECT_EQ(opacities(), std::pair(0.0, 1.0));
}

TEST_F(GridTest, aShotThatStaysInSightKeepsItsCellAndPicture) {
    files.set(gridShot(7).path, {.kind = FileKind::regular});
    open(gridState({30}));
    const auto before = view().cells().shown();
    ASSERT_TRUE(thumbnails.answer(gridShot(7).path));
    bar().setValue(60);
    EXPECT_EQ(view().cells().shown().at(7), before.at(7));
    EXPECT_TRUE(before.at(7)->isShowingThumbnail());

    const auto isPinned = [&before](int index) {
        return dynamic_cast<const NativeScreenshotCell &>(*before.at(index)).isPinned();
    };
    FileGridState state = gridState({30});
    state.sections.front().tiles[7].revision = QStringLiteral("2");
    state.sections.front().tiles[8].isPinned = true;
    grid.render(state);
    EXPECT_FALSE(before.at(7)->image().isNull()) << "the old picture stays until the new one is there";
    EXPECT_FALSE(before.at(7)->isShowingThumbnail());
    EXPECT_TRUE(isPinned(8));
    EXPECT_FALSE(isPinned(9));
}

TEST(ScreenshotTiles, areMarkedAsEditedInTheRevisionThatTheEditorWrote) {
    const Instant written(std::chrono::seconds(1'000));
    Shot shot{.location = QStringLiteral("/a.png"),
              .identity = {ScreenshotFileIdentity::Path{QStringLiteral("/a.png"), {}}},
              .stamp = Shot::revision(20, written) + QStringLiteral("-1-2")};
    const QHash<ScreenshotFileIdentity, QString> edited{{shot.identity, Shot::revision(20, written)}};
    const auto isEdited = [&](const Shot &shown) {
        return screenshotTiles({{.shots = {shown}}}, {}, edited).front().tiles.front().isEdited;
    };
    EXPECT_TRUE(isEdited(shot));
    shot.stamp = Shot::revision(20, written + std::chrono::nanoseconds(1)) + QStringLiteral("-1-2");
    EXPECT_FALSE(isEdited(shot)) << "another program wrote it since";
    shot.stamp = Shot::revision(20, written) + QStringLiteral("0-1-2");
    EXPECT_FALSE(isEdited(shot));
}

TEST_F(GridTest, aFileThatIsListedTwiceLosesNoCell) {
    FileGridState state = gridState({3});
    state.sections.front().tiles[1].path = gridShot(0).path;
    open(state);
    for (int round = 0; round < 3; ++round) {
        state.showFileNames = !state.showFileNames;
        grid.render(state);
    }
    EXPECT_EQ(grid.findChildren<NativeScreenshotCell *>().size(), 3);
}

TEST_F(GridTest, titlesAreShownOnlyWhenGroupedAndOnlyOfSectionsWithShots) {
    const auto titles = [this] {
        QStringList texts;
        for (const auto *header : grid.findChildren<ScreenshotSectionHeader *>()) {
            EXPECT_EQ(header->accessibleName(), header->title());
            if (header->isVisible())
                texts += header->title();
        }
        return texts;
    };
    open(gridState({2, 3, 0, 1}));
    EXPECT_EQ(titles(), QStringList());
    grid.render(gridState({2, 3, 0, 1}, true));
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("Pinned"), QStringLiteral("Today"),
                                     QStringLiteral("Last 7 Days")}));
    grid.render(gridState({2}, true));
    EXPECT_EQ(titles(), QStringList{QStringLiteral("Pinned")});
    grid.render(gridState({2, 3}));
    EXPECT_EQ(titles(), QStringList());
}
