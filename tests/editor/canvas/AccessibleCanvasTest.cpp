#include "editor/DrawnAnnotations.h"
#include "editor/canvas/OpenCanvas.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace tembra {
namespace {

using namespace annotations;

TEST(AccessibleCanvas, listsWhatIsDrawn) {
    OpenCanvas open({arrow({10, 10}, {60, 60}, red, 4),
                     text({100, 100}, QStringLiteral("two\nlines"), 20, red),
                     number({200, 200}, 12, 40, red)});
    QAccessibleInterface *canvas = QAccessible::queryAccessibleInterface(&open.canvas);
    ASSERT_TRUE(canvas);
    EXPECT_EQ(canvas->role(), QAccessible::List);
    EXPECT_FALSE(canvas->text(QAccessible::Name).isEmpty());
    ASSERT_EQ(canvas->childCount(), 3);
    const QStringList names{QStringLiteral("Arrow"), QStringLiteral("Text: two lines"),
                            QStringLiteral("Number 12")};
    open.document.setSelectedIDs({open.annotations()[1].id});
    for (int index = 0; index < 3; ++index) {
        QAccessibleInterface *child = canvas->child(index);
        EXPECT_EQ(child->text(QAccessible::Name), names[index]);
        EXPECT_EQ(child->role(), QAccessible::ListItem);
        EXPECT_EQ(child->parent(), canvas);
        EXPECT_EQ(canvas->indexOfChild(child), index);
        EXPECT_EQ(child->state().selected, index == 1);
        const QPoint middle = child->rect().center();
        EXPECT_TRUE(open.canvas.rect().contains(open.canvas.mapFromGlobal(middle)));
        EXPECT_EQ(canvas->childAt(middle.x(), middle.y()), child);
    }
    EXPECT_EQ(canvas->child(-1), nullptr);
    EXPECT_EQ(canvas->child(3), nullptr);
}

TEST(AccessibleCanvas, outlivesWhatItTellsOf) {
    std::vector<ScreenshotAnnotation> drawn{arrow({10, 10}, {60, 60}, red, 4),
                                            number({200, 200}, 12, 40, red)};
    auto open = std::make_unique<OpenCanvas>(drawn);
    QAccessibleInterface *canvas = QAccessible::queryAccessibleInterface(&open->canvas);
    QAccessibleInterface *first = canvas->child(0);
    const QAccessible::Id id = QAccessible::uniqueId(first);
    open->document.setSelectedIDs({drawn[0].id});
    open->document.deleteSelection();
    EXPECT_FALSE(first->isValid());
    EXPECT_TRUE(first->state().invalid);
    EXPECT_TRUE(first->text(QAccessible::Name).isEmpty());
    EXPECT_TRUE(first->rect().isNull());
    EXPECT_EQ(canvas->indexOfChild(first), -1);
    EXPECT_EQ(canvas->childCount(), 1);
    open->document.history().undo();
    EXPECT_EQ(canvas->child(0), first);
    open->canvas.setDocument(nullptr, nullptr);
    EXPECT_EQ(canvas->childCount(), 0);
    EXPECT_FALSE(first->isValid());
    open.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

} // namespace
} // namespace tembra
