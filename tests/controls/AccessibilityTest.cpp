#include "controls/AccessibleControls.h"
#include "controls/TembraButton.h"
#include "controls/TembraCheckbox.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TembraSegment.h"
#include "controls/TembraSegmentedControl.h"
#include "controls/TembraSettingsRow.h"
#include "controls/TembraSettingsSection.h"
#include "controls/TembraToggle.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace tembra {
namespace {

const QStringList choices{QStringLiteral("One"), QStringLiteral("Two")};

QAccessibleInterface &accessible(QWidget &widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
}

TEST(Accessibility, everyControlTellsItsRole) {
    TembraButton button;
    TembraToggle toggle;
    TembraCheckbox box(QStringLiteral("Tick"));
    TembraSegmentedControl segments(choices);
    TembraDropdownPopup dropdown(choices);
    TembraSettingsSection section(QStringLiteral("Grid"));
    const std::pair<QWidget *, QAccessible::Role> cases[] = {{&button, QAccessible::Button},
                                                             {&toggle, QAccessible::CheckBox},
                                                             {&box, QAccessible::CheckBox},
                                                             {&segments, QAccessible::Grouping},
                                                             {&segments.segment(0), QAccessible::RadioButton},
                                                             {&dropdown, QAccessible::ComboBox},
                                                             {&section, QAccessible::Grouping}};
    for (const auto &[widget, role] : cases)
        EXPECT_EQ(accessible(*widget).role(), role) << widget->metaObject()->className();
    EXPECT_EQ(accessible(section).text(QAccessible::Name), QStringLiteral("Grid"));
}

TEST(Accessibility, theStateIsWhatIsShown) {
    TembraToggle toggle;
    EXPECT_FALSE(accessible(toggle).state().checked);
    toggle.setChecked(true);
    EXPECT_TRUE(accessible(toggle).state().checked);
    toggle.setEnabled(false);
    EXPECT_TRUE(accessible(toggle).state().disabled);
    TembraSegmentedControl segments(choices);
    segments.setCurrentIndex(1);
    EXPECT_FALSE(accessible(segments.segment(0)).state().checked);
    EXPECT_TRUE(accessible(segments.segment(1)).state().checked);
}

// What is asked for through assistive programs is a click like any other.
TEST(Accessibility, aSwitchIsClickedByItsAction) {
    installAccessibleControls();
    TembraToggle toggle;
    int clicks = 0;
    QObject::connect(&toggle, &QAbstractButton::clicked, [&clicks](bool isOn) { clicks += isOn ? 1 : 10; });
    QAccessibleActionInterface *actions = accessible(toggle).actionInterface();
    EXPECT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    for (const int expected : {1, 11}) {
        actions->doAction(QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(clicks, expected);
    }
    toggle.setEnabled(false);
    EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
}

TEST(Accessibility, theChoicesOfADropdownAreFoundBelowItAndChosen) {
    TembraDropdownPopup dropdown(choices);
    dropdown.show();
    EXPECT_EQ(accessible(dropdown).childCount(), 0);
    dropdown.open();
    ASSERT_EQ(accessible(dropdown).childCount(), 1);
    QAccessibleInterface *list = accessible(dropdown).child(0);
    ASSERT_EQ(list->childCount(), 2);
    EXPECT_EQ(list->child(2), nullptr);
    EXPECT_TRUE(list->child(0)->state().selected);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), choices[1]);
    EXPECT_EQ(list->indexOfChild(list->child(1)), 1);
    list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(dropdown.currentIndex(), 1);
    EXPECT_EQ(accessible(dropdown).text(QAccessible::Description), choices[1]);
}

TEST(Accessibility, aDropdownTellsItsValueAndOpensOnRequest) {
    TembraDropdownPopup dropdown(choices);
    dropdown.show();
    QAccessibleInterface &interface = accessible(dropdown);
    dropdown.setCurrentIndex(1);
    EXPECT_EQ(interface.text(QAccessible::Value), choices[1]);
    EXPECT_TRUE(interface.state().collapsed);
    ASSERT_NE(interface.actionInterface(), nullptr);
    interface.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(interface.state().expanded);
}

TEST(Accessibility, aRowNamesItsControl) {
    auto *toggle = new TembraToggle;
    TembraSettingsRow row(QStringLiteral("Show file names"), toggle);
    row.setDetail(QStringLiteral("Under each one"));
    EXPECT_EQ(accessible(*toggle).text(QAccessible::Name), QStringLiteral("Show file names"));
    EXPECT_EQ(accessible(*toggle).text(QAccessible::Description), QStringLiteral("Under each one"));
}

} // namespace
} // namespace tembra
