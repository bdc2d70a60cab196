#include "EditorGallery.h"
#include "editor/chrome/EditorBanner.h"
#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorIconButton.h"
#include "editor/chrome/EditorSwatch.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace tembra {
namespace {

// Calls the function with everything that assistive programs find below.
void walk(QAccessibleInterface &root, const std::function<void(QAccessibleInterface &)> &visit) {
    visit(root);
    for (int index = 0; index < root.childCount(); ++index) {
        if (QAccessibleInterface *child = root.child(index))
            walk(*child, visit);
    }
}

TEST(AccessibleChrome, nothingThatTakesTheKeyboardIsWithoutAName) {
    EditorGallery gallery(Appearance::dark);
    gallery.resize(1200, 740);
    gallery.show();
    gallery.showBanner();
    int named = 0;
    for (int tool = 0; editorTool(tool); ++tool) {
        gallery.choose(*editorTool(tool));
        walk(*QAccessible::queryAccessibleInterface(&gallery), [&](QAccessibleInterface &found) {
            if (!found.state().focusable || found.state().invisible)
                return;
            ++named;
            EXPECT_FALSE(found.text(QAccessible::Name).isEmpty())
                << found.object()->metaObject()->className() << " below "
                << found.object()->parent()->metaObject()->className();
        });
    }
    EXPECT_GT(named, 100);
}

TEST(AccessibleChrome, controlsTellWhatTheyAre) {
    EditorGallery gallery(Appearance::light);
    gallery.showBanner();
    const auto role = [](QWidget *widget) { return QAccessible::queryAccessibleInterface(widget)->role(); };
    EXPECT_EQ(role(gallery.findChild<EditorBanner *>()), QAccessible::AlertMessage);
    EXPECT_EQ(role(gallery.findChild<EditorDock *>()), QAccessible::ToolBar);
    EXPECT_EQ(role(gallery.findChild<EditorSwatch *>()), QAccessible::RadioButton);
    auto *tool = gallery.findChild<EditorDock *>()->findChild<EditorIconButton *>();
    EXPECT_EQ(role(tool), QAccessible::RadioButton);
    gallery.choose(EditorTool::select);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(tool)->state().checked);
}

} // namespace
} // namespace tembra
