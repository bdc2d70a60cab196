#include "controls/ShelfMenu.h"
#include "controls/TembraButton.h"
#include "editor/chrome/EditorBanner.h"
#include "editor/chrome/EditorDragHandle.h"
#include "editor/chrome/EditorHeader.h"
#include "editor/chrome/EditorNameField.h"
#include "support/PseudoLocale.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tembra {
namespace {

struct Header : testing::Test {
    Header() {
        header.resize(1200, EditorHeader::barHeight);
        header.apply({.name = QStringLiteral("Shot"), .extension = QStringLiteral("png")});
        header.show();
        header.activateWindow();
        edit = header.findChild<QLineEdit *>();
    }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&header)); }

    void type(const QString &name) {
        header.nameField().setFocus(Qt::TabFocusReason);
        edit->selectAll();
        QTest::keyClicks(edit, name);
    }
    [[nodiscard]] TembraButton *button(const QString &text) {
        for (auto *found : header.findChildren<TembraButton *>()) {
            if (found->text() == text)
                return found;
        }
        return nullptr;
    }

    EditorHeader header;
    QLineEdit *edit = nullptr;
    QSignalSpy renames{&header, &EditorHeader::renameRequested};
};

TEST_F(Header, returnAsksForTheNewName) {
    type(QStringLiteral("  Other "));
    QTest::keyClick(edit, Qt::Key_Return);
    ASSERT_EQ(renames.count(), 1);
    EXPECT_EQ(renames[0][0].toString(), QStringLiteral("Other"));
    EXPECT_EQ(edit->text(), QStringLiteral("Shot")) << "until it has the new name";
}

TEST_F(Header, whatIsNoNewNameIsNotAskedFor) {
    type(QStringLiteral("Shot"));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_FALSE(header.nameField().isEditing());
    EXPECT_TRUE(renames.isEmpty());
    type(QStringLiteral("   "));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(renames.count(), 1) << "which is told to be no name";
}

TEST_F(Header, escapeAndLeavingRestoreTheName) {
    const QSignalSpy ends(&header, &EditorHeader::nameEditingEnded);
    type(QStringLiteral("Other"));
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(edit->text(), QStringLiteral("Shot"));
    type(QStringLiteral("Other"));
    button(QStringLiteral("Copy image"))->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(edit->text(), QStringLiteral("Shot"));
    EXPECT_TRUE(renames.isEmpty());
    EXPECT_EQ(ends.count(), 2);
}

TEST_F(Header, aStateThatComesWhileTypingLeavesWhatWasTyped) {
    type(QStringLiteral("Other"));
    header.apply({.name = QStringLiteral("Renamed"), .extension = QStringLiteral("png"), .isDirty = true});
    EXPECT_EQ(edit->text(), QStringLiteral("Other"));
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(edit->text(), QStringLiteral("Renamed"));
    EXPECT_EQ(edit->accessibleDescription(), QStringLiteral("Edited"));
}

TEST_F(Header, buttonsFollowTheState) {
    header.apply({.canUndo = true, .undoName = QStringLiteral("Move annotations"), .canSave = true});
    EXPECT_EQ(button(QStringLiteral("Undo"))->toolTip(), QStringLiteral("Undo Move annotations (Ctrl+Z)"));
    EXPECT_EQ(button(QStringLiteral("Redo"))->toolTip(), QStringLiteral("Redo (Ctrl+Shift+Z)"));
    EXPECT_FALSE(button(QStringLiteral("Redo"))->isEnabled());
    TembraButton *save = button(QStringLiteral("Save"));
    EXPECT_TRUE(save->isEnabled());
    const int width = save->width();
    header.apply({.canSave = true, .isSaving = true});
    EXPECT_FALSE(save->isEnabled());
    EXPECT_EQ(save->accessibleName(), QStringLiteral("Saving…"));
    EXPECT_EQ(save->width(), width);
}

TEST_F(Header, everyActionIsTold) {
    header.apply({.canUndo = true, .canRedo = true, .canSave = true});
    const std::pair<QString, void (EditorHeader::*)()> actions[] = {
        {QStringLiteral("Undo"), &EditorHeader::undoRequested},
        {QStringLiteral("Redo"), &EditorHeader::redoRequested},
        {QStringLiteral("Copy image"), &EditorHeader::copyRequested},
        {QStringLiteral("Save as…"), &EditorHeader::saveAsRequested},
        {QStringLiteral("Save"), &EditorHeader::saveRequested}};
    for (const auto &[title, signal] : actions) {
        const QSignalSpy spy(&header, signal);
        QTest::mouseClick(button(title), Qt::LeftButton);
        EXPECT_EQ(spy.count(), 1) << title.toStdString();
    }
    const QSignalSpy reveals(&header, &EditorHeader::revealRequested);
    const QSignalSpy removals(&header, &EditorHeader::trashRequested);
    const std::unique_ptr<ShelfMenu> menu(header.makeMenu());
    for (QAction *action : menu->actions())
        action->trigger();
    EXPECT_EQ(reveals.count(), 1);
    EXPECT_EQ(removals.count(), 1);
}

TEST_F(Header, theHandleDragsAndCopiesByKey) {
    const QSignalSpy drags(&header, &EditorHeader::dragRequested);
    const QSignalSpy copies(&header, &EditorHeader::copyRequested);
    QWidget &handle = header.dragHandle();
    const QPoint from = handle.rect().center();
    QTest::mouseClick(&handle, Qt::LeftButton);
    EXPECT_TRUE(drags.isEmpty() && copies.isEmpty());
    QTest::mousePress(&handle, Qt::LeftButton, {}, from);
    QTest::mouseMove(&handle, from + QPoint(1, 0));
    EXPECT_TRUE(drags.isEmpty());
    QTest::mouseMove(&handle, from + QPoint(40, 0));
    QTest::mouseMove(&handle, from + QPoint(80, 0));
    QTest::mouseRelease(&handle, Qt::LeftButton);
    EXPECT_EQ(drags.count(), 1);
    QTest::keyClick(&handle, Qt::Key_Return);
    EXPECT_EQ(copies.count(), 1);
}

TEST_F(Header, aNarrowWindowShortensOnlyTheName) {
    header.apply({.name = QString(200, u'x'), .extension = QStringLiteral("png"), .isDirty = true});
    for (const int width : {720, 900, 1600}) {
        header.resize(width, EditorHeader::barHeight);
        const auto controls = header.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        for (const QWidget *one : controls) {
            EXPECT_TRUE(header.rect().contains(one->geometry())) << width;
            for (const QWidget *other : controls) {
                const QRect apart = other->geometry().adjusted(3, 0, -3, 0);
                EXPECT_TRUE(one == other || !one->geometry().adjusted(3, 0, -3, 0).intersects(apart))
                    << width;
            }
        }
    }
}

TEST(Banner, isThereUntilDismissedOrAnswered) {
    EditorBanner banner;
    const QSignalSpy dismissals(&banner, &EditorBanner::dismissed);
    int answers = 0;
    const auto answer = [&] {
        ++answers;
        // What follows may have something to say again.
        banner.present({.text = QStringLiteral("Copied.")});
    };
    banner.present({.text = QStringLiteral("Changed."), .actions = {{QStringLiteral("Copy"), answer}}});
    EXPECT_EQ(banner.text(), QStringLiteral("Changed."));
    QTest::mouseClick(banner.findChild<TembraButton *>(), Qt::LeftButton);
    EXPECT_EQ(answers, 1);
    EXPECT_EQ(banner.text(), QStringLiteral("Copied."));
    QTest::keyClick(&banner, Qt::Key_Escape);
    EXPECT_TRUE(banner.isHidden());
    EXPECT_EQ(dismissals.count(), 2);
}

TEST(Banner, aLongSentenceIsWrapped) {
    EditorBanner banner;
    banner.present({.text = QStringLiteral("A sentence that goes on. ").repeated(12)});
    EXPECT_GT(banner.heightForWidth(500), banner.heightForWidth(4000));
}

TEST(EditorHeader, isMirroredWhereLanguagesRunFromRightToLeft) {
    expectMirrorImage([] {
        auto bar = std::make_unique<EditorHeader>();
        bar->resize(900, EditorHeader::barHeight);
        bar->apply({.name = QStringLiteral("Shot"), .extension = QStringLiteral("png"), .canUndo = true});
        return bar;
    });
}

} // namespace
} // namespace tembra
