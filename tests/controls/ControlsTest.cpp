#include "controls/TembraCheckbox.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TembraSegment.h"
#include "controls/TembraSegmentedControl.h"
#include "controls/TembraToggle.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

QAccessible::Role roleOf(QWidget &widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
}

} // namespace

TEST(Controls, switchesTurnByPointerAndSpaceAndSaySo) {
    TembraToggle toggle;
    TembraCheckbox checkbox(QStringLiteral("Tick me"));
    for (QAbstractButton *control :
         {static_cast<QAbstractButton *>(&toggle), static_cast<QAbstractButton *>(&checkbox)}) {
        control->resize(control->sizeHint());
        const QSignalSpy toggled(control, &QAbstractButton::toggled);
        QTest::mouseClick(control, Qt::LeftButton);
        EXPECT_TRUE(control->isChecked());
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(control)->state().checked);
        QTest::keyClick(control, Qt::Key_Space);
        EXPECT_FALSE(control->isChecked());
        control->setEnabled(false);
        QTest::mouseClick(control, Qt::LeftButton);
        EXPECT_EQ(toggled.count(), 2);
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(control)->state().checkable);
    }
    EXPECT_EQ(roleOf(checkbox), QAccessible::CheckBox);
}

TEST(Controls, aSegmentedControlIsChosenByKeysAndPointerAndTellsEachChangeOnce) {
    TembraSegmentedControl control({QStringLiteral("Hover"), QStringLiteral("Click"), QStringLiteral("Off")});
    control.resize(control.sizeHint());
    control.show();
    const QSignalSpy changes(&control, &TembraSegmentedControl::currentIndexChanged);
    control.setCurrentIndex(0);
    EXPECT_EQ(changes.count(), 0);
    struct Row {
        Qt::Key key;
        int expected;
    };
    for (const Row &row :
         {Row{Qt::Key_Right, 1}, Row{Qt::Key_End, 2}, Row{Qt::Key_Left, 1}, Row{Qt::Key_Home, 0}}) {
        QWidget *current = &control.segment(control.currentIndex());
        QTest::keyClick(current, row.key);
        EXPECT_EQ(control.currentIndex(), row.expected);
    }
    EXPECT_EQ(changes.count(), 4);
}

TEST(Controls, aDropdownIsChosenByKeysWithoutBeingOpened) {
    TembraDropdownPopup popup({QStringLiteral("Never"), QStringLiteral("1 day"), QStringLiteral("7 days")});
    const QSignalSpy changes(&popup, &TembraDropdownPopup::currentIndexChanged);
    struct Row {
        Qt::Key key;
        int expected;
    };
    for (const Row &row : {Row{Qt::Key_Down, 1}, Row{Qt::Key_End, 2}, Row{Qt::Key_Up, 1},
                           Row{Qt::Key_Home, 0}, Row{Qt::Key_7, 2}, Row{Qt::Key_N, 0}}) {
        QTest::keyClick(&popup, row.key);
        EXPECT_EQ(popup.currentIndex(), row.expected) << row.key;
    }
    EXPECT_EQ(changes.count(), 6);
    popup.setChoices({QStringLiteral("1 day"), QStringLiteral("Never")});
    EXPECT_EQ(popup.currentText(), QStringLiteral("Never")) << "the same choice in its new place";
    popup.setChoices({});
    EXPECT_EQ(popup.currentIndex(), -1);
}
