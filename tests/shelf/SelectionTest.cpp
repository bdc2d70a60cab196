#include "GridShots.h"
#include "shelf/FileSelection.h"

#include <gtest/gtest.h>

using namespace tembra;
using enum FileSelection::Mode;

class SelectionTest : public testing::Test {
protected:
    bool choose(int index, FileSelection::Mode mode) { return selection.choose(state, index, mode); }
    [[nodiscard]] std::vector<int> selected() const { return gridNumbers(selection.tiles(state)); }
    FileTile takeOut(int index) {
        auto &shots = state.sections.front().tiles;
        FileTile shot = shots[static_cast<std::size_t>(index)];
        shots.erase(shots.begin() + index);
        return shot;
    }

    FileGridState state = gridState({4, 3});
    FileSelection selection;
};

using Numbers = std::vector<int>;

TEST_F(SelectionTest, followsClicksOfEveryKind) {
    struct Row {
        int index;
        FileSelection::Mode mode;
        bool changes;
        Numbers expected;
    };
    const std::vector<Row> table{
        {4, extend, true, {4}},       {2, extend, true, {2, 3, 4}},    {5, extend, true, {4, 5}},
        {1, replace, true, {1}},      {1, replace, false, {1}},        {3, toggle, true, {1, 3}},
        {5, extend, true, {3, 4, 5}}, {0, toggle, true, {0, 3, 4, 5}}, {4, toggle, true, {0, 3, 5}},
        {6, extend, true, {4, 5, 6}},
    };
    for (const Row &row : table) {
        EXPECT_EQ(choose(row.index, row.mode), row.changes) << row.index;
        EXPECT_EQ(selected(), row.expected) << row.index;
        EXPECT_EQ(selection.current(state), row.index);
    }
    EXPECT_TRUE(selection.selectAll(state));
    EXPECT_EQ(selected().size(), 7U);
    EXPECT_FALSE(selection.selectAll(state));
}

TEST_F(SelectionTest, staysWithAFileThatIsRenamedAndMovesToAnotherSection) {
    choose(1, replace);
    choose(3, toggle);
    FileTile moved = takeOut(1);
    moved.path = QStringLiteral("/shots/renamed.png");
    moved.revision = QStringLiteral("2");
    state.sections.back().tiles.push_back(moved);
    EXPECT_FALSE(selection.retain(state));
    EXPECT_EQ(selected(), (Numbers{3, 1})) << "in display order";
    EXPECT_EQ(selection.current(state), 2);
}

TEST_F(SelectionTest, givesUpWhatIsGone) {
    choose(1, replace);
    choose(2, toggle);
    takeOut(2);
    EXPECT_TRUE(selection.retain(state));
    EXPECT_EQ(selected(), (Numbers{1}));
    EXPECT_FALSE(selection.current(state));
    EXPECT_FALSE(selection.retain(state));
}

TEST_F(SelectionTest, extendsFromANewPlaceWhenWhereItBeganIsGone) {
    choose(1, replace);
    takeOut(1);
    selection.retain(state);
    choose(2, extend);
    choose(4, extend);
    EXPECT_EQ(selected(), (Numbers{3, 4, 5})) << "the shots at 2, 3 and 4";
}

TEST_F(SelectionTest, clearedItBeginsAnew) {
    choose(1, replace);
    EXPECT_TRUE(selection.clear());
    EXPECT_FALSE(selection.clear());
    EXPECT_FALSE(selection.current(state)) << "the keyboard acts on nothing that is not shown as selected";
    choose(3, extend);
    EXPECT_EQ(selected(), (Numbers{3}));
}
