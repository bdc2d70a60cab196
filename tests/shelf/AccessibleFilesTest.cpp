#include "shelf/AccessibleFiles.h"

#include "GridShots.h"
#include "shelf/AccessibleShelf.h"
#include "shelf/FileCollectionView.h"
#include "shelf/FileThumbnailCache.h"
#include "shelf/NativeScreenshotGrid.h"
#include "support/FakeFileFacts.h"
#include "support/FakeThumbnails.h"

#include <QAccessible>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

using Numbers = std::vector<int>;
using Action = QAccessibleActionInterface;

// Before the first view asks what it is.
struct Installed {
    Installed() { installAccessibleShelf(); }
};

class AccessibleFilesTest : public testing::Test {
protected:
    AccessibleFilesTest() {
        grid.resize(744, 212);
        QObject::connect(&grid, &FileGrid::activated,
                         [this](const FileTile &shot) { activated = gridNumbers({shot}); });
        QObject::connect(&grid, &FileGrid::contextMenuRequested,
                         [this](const FileTile &shot) { menuOf = gridNumbers({shot}); });
    }

    void show(FileGridState state) {
        grid.render(std::move(state));
        grid.show();
    }
    [[nodiscard]] QAccessibleInterface &list() {
        return *QAccessible::queryAccessibleInterface(&grid.collectionView());
    }
    [[nodiscard]] Numbers selected() const { return gridNumbers(grid.selectedTiles()); }

    const Installed installed;
    FakeThumbnails thumbnails;
    FakeFileFacts files;
    FileThumbnailCache cache;
    NativeScreenshotGrid grid{FilePresentation{thumbnails, files, cache}};
    Numbers activated;
    Numbers menuOf;
};

} // namespace

TEST_F(AccessibleFilesTest, listsEveryFileAndThenTheTitles) {
    FileGridState state = gridState({40, 3}, true);
    state.sections[1].tiles[2].isPinned = true;
    state.sections[1].tiles[2].isEdited = true;
    show(state);
    EXPECT_EQ(list().role(), QAccessible::List);
    ASSERT_EQ(list().childCount(), 45);
    for (const int index : {0, 17, 42}) {
        QAccessibleInterface *file = list().child(index);
        EXPECT_EQ(file->text(QAccessible::Name), QStringLiteral("%1.png").arg(index));
        EXPECT_EQ(file->role(), QAccessible::ListItem);
        EXPECT_EQ(file->parent(), &list());
        EXPECT_EQ(list().indexOfChild(file), index);
        EXPECT_EQ(file->state().offscreen, index > 0);
    }
    EXPECT_EQ(list().child(42)->text(QAccessible::Description), QStringLiteral("Pinned, Edited"));
    EXPECT_EQ(list().child(43)->role(), QAccessible::Heading);
    EXPECT_EQ(list().indexOfChild(list().child(44)), 44);
    EXPECT_EQ(list().child(-1), nullptr);
    EXPECT_EQ(list().child(45), nullptr);
}

TEST_F(AccessibleFilesTest, offersWhatCanBeDone) {
    show(gridState({12}));
    const auto act = [this](int index, const QString &name) {
        Action *actions = list().child(index)->actionInterface();
        EXPECT_TRUE(actions->actionNames().contains(name));
        actions->doAction(name);
    };
    act(3, Action::pressAction());
    EXPECT_EQ(selected(), Numbers{3});
    EXPECT_TRUE(list().child(3)->state().selected);
    act(11, Action::toggleAction());
    EXPECT_EQ(selected(), (Numbers{3, 11}));
    act(11, Action::showMenuAction());
    EXPECT_EQ(menuOf, Numbers{11});
    EXPECT_EQ(selected(), (Numbers{3, 11})) << "the menu is that of all that are selected";
    act(5, Action::showMenuAction());
    EXPECT_EQ(selected(), Numbers{5});
    act(7, QStringLiteral("Open"));
    EXPECT_EQ(activated, Numbers{7});
}

TEST_F(AccessibleFilesTest, followsAFileAndEndsWithIt) {
    FileGridState state = gridState({3});
    show(state);
    QAccessibleInterface *last = list().child(2);
    const QAccessible::Id id = QAccessible::uniqueId(last);
    // The same file under another name and elsewhere.
    std::swap(state.sections[0].tiles[0], state.sections[0].tiles[2]);
    state.sections[0].tiles[0].path = QStringLiteral("/shots/renamed.png");
    grid.render(state);
    EXPECT_EQ(list().child(0), last);
    EXPECT_EQ(last->text(QAccessible::Name), QStringLiteral("renamed.png"));
    state.sections[0].tiles.erase(state.sections[0].tiles.begin());
    grid.render(state);
    EXPECT_FALSE(last->isValid());
    EXPECT_TRUE(last->text(QAccessible::Name).isEmpty());
    EXPECT_EQ(list().childCount(), 2);
    last->actionInterface()->doAction(Action::pressAction());
    EXPECT_EQ(selected(), Numbers());
    dynamic_cast<AccessibleFiles &>(list()).filesChanged();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}
