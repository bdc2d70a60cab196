#include "shelf/FileGridLayout.h"
#include "shelf/ShelfLayout.h"

#include <gtest/gtest.h>

using namespace tembra;
using Grid = ShelfLayout::Grid;
using Section = FileGridLayout::Section;
using Range = FileGridLayout::Range;
using enum FileGridLayout::Direction;

namespace {

// Room for exactly this many columns.
constexpr int widthOf(int columns) {
    return 24 + columns * 104 + (columns - 1) * 8 + 32;
}

FileGridLayout layoutOf(const std::vector<Section> &sections, bool showFileNames = true,
                        int width = widthOf(3)) {
    return {width, sections, showFileNames};
}

} // namespace

TEST(ShelfGrid, hasAsManyColumnsAsFitBetweenItsMargins) {
    struct Row {
        double width;
        int columns;
    };
    const std::vector<Row> table{{-50, 1},
                                 {0, 1},
                                 {100, 1},
                                 {widthOf(1), 1},
                                 {widthOf(2) - 0.5, 1},
                                 {widthOf(2), 2},
                                 {744, 6},
                                 {widthOf(6) - 1, 5},
                                 {widthOf(6), 6},
                                 {widthOf(7) - 1, 6},
                                 {widthOf(40), 40},
                                 {1e12, INT_MAX}};
    for (const Row &row : table)
        EXPECT_EQ(Grid::columns(row.width), row.columns) << row.width;
}

TEST(ShelfGridDeathTest, aWidthThatIsNoNumberIsAMistake) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(std::ignore = Grid::columns(qQNaN()), "not finite");
    EXPECT_DEATH(std::ignore = Grid::columns(qInf()), "not finite");
}

TEST(ShelfGrid, documentHoldsAllRowsAndAtLeastTheViewport) {
    struct Row {
        int count;
        QSizeF viewport;
        bool showFileNames;
        double height;
    };
    const QSizeF low(widthOf(3), 10);
    const std::vector<Row> table{{-1, low, true, 28},
                                 {0, low, true, 28},
                                 {1, low, true, 20 + 112 + 8},
                                 {3, low, true, 20 + 112 + 8},
                                 {4, low, true, 20 + 112 + 8 + 112 + 8},
                                 {4, low, false, 20 + 72 + 8 + 72 + 8},
                                 {4, {widthOf(3), 500.5}, true, 500.5},
                                 {2, {0, 0}, false, 20 + 72 + 8 + 72 + 8},
                                 {INT_MAX, {0, 0}, true, 20 + 120.0 * INT_MAX}};
    for (const Row &row : table) {
        const QSizeF size = Grid::documentSize(row.count, row.viewport, row.showFileNames);
        EXPECT_EQ(size, QSizeF(row.viewport.width(), row.height)) << row.count << row.showFileNames;
    }
}

TEST(FileGridLayout, aRunWithoutTitlesIsAsHighAsTheDocumentIsToBe) {
    for (const bool showFileNames : {true, false}) {
        for (const int count : {1, 3, 4, 100'000}) {
            const auto layout = layoutOf({{count, false}}, showFileNames);
            EXPECT_EQ(layout.height(), Grid::documentSize(count, {widthOf(3), 0}, showFileNames).height());
            EXPECT_EQ(layout.itemRect(count - 1).bottom() + 1 + 8, layout.height()) << count;
        }
    }
    EXPECT_EQ(layoutOf({}).count(), 0);
    EXPECT_EQ(layoutOf({{0, true}}).height(), 0);
}

TEST(FileGridLayout, titlesAndTilesFollowEachOtherDownThePageWithoutMeeting) {
    for (const bool showFileNames : {true, false}) {
        const auto layout = layoutOf({{0, true}, {4, true}, {0, true}, {1, true}, {2, false}}, showFileNames);
        EXPECT_EQ(layout.count(), 7);
        EXPECT_TRUE(layout.headerRect(0).isEmpty()) << "a section without shots has no title";
        EXPECT_TRUE(layout.headerRect(2).isEmpty());
        EXPECT_TRUE(layout.headerRect(4).isEmpty());
        EXPECT_GE(layout.headerRect(1).top(), 0);
        EXPECT_EQ(layout.itemRect(0).topLeft(), QPoint(24, layout.headerRect(1).bottom() + 1 + 8));
        EXPECT_EQ(layout.itemRect(2).right() + 1 + 32, widthOf(3));
        EXPECT_EQ(layout.itemRect(3).left(), 24);
        EXPECT_EQ(layout.itemRect(3).top(), layout.itemRect(0).bottom() + 1 + 8);
        EXPECT_GE(layout.headerRect(3).top(), layout.itemRect(3).bottom() + 1 + 8);
        EXPECT_EQ(layout.itemRect(4).top(), layout.headerRect(3).bottom() + 1 + 8);
        EXPECT_EQ(layout.itemRect(5).top(), layout.itemRect(4).bottom() + 1 + 8 + 20);
        EXPECT_EQ(layout.itemRect(5).size(), QSize(104, showFileNames ? 112 : 72));
        EXPECT_EQ(layout.itemRect(6).bottom() + 1 + 8, layout.height());
    }
}

TEST(FileGridLayout, findsTheTileUnderAPointAndNoneBetweenTiles) {
    const auto layout = layoutOf({{4, true}, {2, true}});
    for (int index = 0; index < layout.count(); ++index) {
        const QRect tile = layout.itemRect(index);
        EXPECT_EQ(layout.itemAt(tile.topLeft()), index);
        EXPECT_EQ(layout.itemAt(tile.bottomRight()), index);
        EXPECT_FALSE(layout.itemAt(tile.topLeft() - QPoint(1, 0))) << index;
        EXPECT_FALSE(layout.itemAt(tile.topRight() + QPoint(1, 0))) << index;
        EXPECT_FALSE(layout.itemAt(tile.bottomLeft() + QPoint(0, 1))) << index;
    }
    EXPECT_FALSE(layout.itemAt(layout.headerRect(1).center()));
    EXPECT_FALSE(layout.itemAt(layout.itemRect(3).center() + QPoint(112, 0))) << "the row ends before";
    EXPECT_FALSE(layout.itemAt({50, -10}));
    EXPECT_FALSE(layout.itemAt({50, layout.height() + 10}));
    EXPECT_FALSE(FileGridLayout().itemAt({0, 0}));
}

TEST(FileGridLayout, whatLiesWithinASpanAreTheWholeRowsThatTouchIt) {
    const auto layout = layoutOf({{4, true}, {0, true}, {2, true}});
    const auto top = [&](int index) { return layout.itemRect(index).top(); };
    struct Row {
        const char *what;
        int top;
        int bottom;
        Range expected;
    };
    const std::vector<Row> table{{"all", 0, layout.height(), {0, 6}},
                                 {"more than all", -1000, 9000, {0, 6}},
                                 {"above the tiles", 0, top(0), {}},
                                 {"one line of the first row", 0, top(0) + 1, {0, 3}},
                                 {"second row", top(3), top(3) + 112, {3, 4}},
                                 {"into the next section", top(3) + 50, top(4) + 1, {3, 6}},
                                 {"last section", top(4), top(4) + 1, {4, 6}},
                                 {"below", layout.height(), layout.height() + 500, {}},
                                 {"nothing", 40, 40, {0, 3}}};
    for (const Row &row : table) {
        const Range range = layout.itemsWithin(row.top, row.bottom);
        if (row.expected.first < row.expected.last)
            EXPECT_EQ(range, row.expected) << row.what << ' ' << range.first << ' ' << range.last;
        else
            EXPECT_EQ(range.first, range.last) << row.what;
    }
}

TEST(FileGridLayout, arrowsLeadToTheNearestTileAndStopAtTheEnds) {
    // 0 1 2 | 3   then   4 5 6 | 7 8
    const auto layout = layoutOf({{0, true}, {4, true}, {0, true}, {5, true}, {0, true}});
    struct Row {
        int from;
        FileGridLayout::Direction direction;
        int to;
    };
    const std::vector<Row> table{
        {0, left, 0}, {0, right, 1}, {3, right, 4}, {4, left, 3}, {8, right, 8}, {0, up, 0},
        {2, up, 2},   {0, down, 3},  {2, down, 3},  {3, up, 0},   {3, down, 4},  {5, up, 3},
        {4, up, 3},   {5, down, 8},  {6, down, 8},  {7, down, 7}, {8, down, 8},  {8, up, 5},
    };
    for (const Row &row : table)
        EXPECT_EQ(layout.neighbour(row.from, row.direction), row.to)
            << row.from << " direction " << static_cast<int>(row.direction);
}

TEST(ShelfGrid, isItsOwnMirrorImageFromRightToLeft) {
    const std::vector<Section> sections{{5, true}, {2, true}};
    const int width = widthOf(3) + 17;
    const FileGridLayout plain(width, sections, true);
    const FileGridLayout mirrored(width, sections, true, Qt::RightToLeft);
    const auto image = [width](const QRect &rect) {
        return QRect(width - rect.x() - rect.width(), rect.y(), rect.width(), rect.height());
    };
    for (int index = 0; index < plain.count(); ++index) {
        EXPECT_EQ(mirrored.itemRect(index), image(plain.itemRect(index))) << index;
        EXPECT_EQ(mirrored.itemAt(mirrored.itemRect(index).center()), index);
        EXPECT_EQ(mirrored.neighbour(index, left), plain.neighbour(index, right));
        EXPECT_EQ(mirrored.neighbour(index, right), plain.neighbour(index, left));
        EXPECT_EQ(mirrored.neighbour(index, down), plain.neighbour(index, down));
    }
    EXPECT_EQ(mirrored.headerRect(1), image(plain.headerRect(1)));
}
