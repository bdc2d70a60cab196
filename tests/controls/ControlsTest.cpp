#include "controls/KeyboardFocus.h"
#include "controls/TembraButton.h"
#include "controls/TembraCheckbox.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TembraLinkButton.h"
#include "controls/TembraSegment.h"
#include "controls/TembraSegmentedControl.h"
#include "controls/TembraTextField.h"
#include "controls/TembraToggle.h"
#include "controls/TembraToolTip.h"
#include "controls/Theme.h"

#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tembra {
namespace {

const QStringList fruits{QStringLiteral("Apple"), QStringLiteral("Banana"), QStringLiteral("Blueberry"),
                         QStringLiteral("Cherry")};

template <typename Control>
void show(Control &control) {
    control.resize(control.sizeHint());
    control.show();
    control.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
}

// What a click and each key do to a button of any kind.
void expectClicks(QAbstractButton &button, const QList<Qt::Key> &keys) {
    show(button);
    const QSignalSpy clicks(&button, &QAbstractButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    for (const Qt::Key key : keys)
        QTest::keyClick(&button, key);
    EXPECT_EQ(clicks.count(), 1 + keys.size());
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, keys.first());
    EXPECT_EQ(clicks.count(), 1 + keys.size());
}

TEST(Controls, buttonsClickOnceByPointerAndKeyAndNotWhileDisabled) {
    TembraButton button(TembraButton::Kind::plain, TembraButton::Size::compact, QStringLiteral("Open"));
    expectClicks(button, {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter});
    TembraLinkButton link(QStringLiteral("More"));
    expectClicks(link, {Qt::Key_Space, Qt::Key_Return});
    TembraToggle toggle;
    expectClicks(toggle, {Qt::Key_Space});
    EXPECT_FALSE(toggle.isChecked());
    TembraCheckbox box(QStringLiteral("Tick"));
    expectClicks(box, {Qt::Key_Space, Qt::Key_Space});
    EXPECT_TRUE(box.isChecked());
}

TEST(Controls, theFocusIsShownOnceTheKeyboardLeads) {
    TembraButton button(TembraButton::Kind::plain, TembraButton::Size::compact, QStringLiteral("Open"));
    const KeyboardFocus focus(button);
    show(button);
    button.setFocus(Qt::MouseFocusReason);
    const std::pair<Qt::Key, bool> steps[] = {
        {Qt::Key_Control, false}, {Qt::Key_Shift, false}, {Qt::Key_Left, true}, {Qt::Key_Control, true}};
    for (const auto &[key, isShown] : steps) {
        QTest::keyClick(&button, key);
        EXPECT_EQ(focus.isShown(), isShown) << key;
    }
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_FALSE(focus.isShown());
}

TEST(Controls, segmentsAreChosenByKeysAndPointer) {
    TembraSegmentedControl control(fruits);
    show(control);
    control.segment(0).setFocus(Qt::TabFocusReason);
    const QSignalSpy changes(&control, &TembraSegmentedControl::currentIndexChanged);
    const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Left, 0}, {Qt::Key_Right, 1}, {Qt::Key_Down, 2},
                                             {Qt::Key_Up, 1},   {Qt::Key_End, 3},   {Qt::Key_Right, 3},
                                             {Qt::Key_Home, 0}};
    for (const auto &[key, expected] : steps) {
        QTest::keyClick(&control.segment(control.currentIndex()), key);
        EXPECT_EQ(control.currentIndex(), expected) << key;
        EXPECT_TRUE(control.segment(expected).isChecked());
        EXPECT_TRUE(control.segment(expected).hasFocus());
    }
    EXPECT_EQ(changes.count(), 5);
    QTest::mouseClick(&control.segment(2), Qt::LeftButton);
    EXPECT_EQ(control.currentIndex(), 2);
    EXPECT_EQ(changes.count(), 6);
    control.setCurrentIndex(2);
    control.setCurrentIndex(9);
    control.setEnabled(false);
    QTest::mouseClick(&control.segment(0), Qt::LeftButton);
    EXPECT_EQ(changes.count(), 6);
}

TEST(Controls, aClosedDropdownIsChosenByKeysAndLetters) {
    TembraDropdownPopup dropdown(fruits);
    show(dropdown);
    const QSignalSpy changes(&dropdown, &TembraDropdownPopup::currentIndexChanged);
    const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Up, 0},   {Qt::Key_Down, 1}, {Qt::Key_End, 3},
                                             {Qt::Key_Down, 3}, {Qt::Key_Home, 0}, {Qt::Key_B, 1},
                                             {Qt::Key_B, 2},    {Qt::Key_X, 2}};
    for (const auto &[key, expected] : steps) {
        QTest::keyClick(&dropdown, key);
        EXPECT_EQ(dropdown.currentIndex(), expected) << key;
    }
    EXPECT_EQ(changes.count(), 5);
    EXPECT_FALSE(dropdown.isOpen());
}

TEST(Controls, anOpenDropdownChoosesOnceOrNotAtAll) {
    struct Case {
        QList<Qt::Key> keys;
        int expected;
        int chosen;
    };
    const Case cases[] = {{{Qt::Key_Down, Qt::Key_Return}, 1, 1}, {{Qt::Key_End, Qt::Key_Enter}, 3, 1},
                          {{Qt::Key_C, Qt::Key_Space}, 3, 1},     {{Qt::Key_Return}, 0, 1},
                          {{Qt::Key_Down, Qt::Key_Escape}, 0, 0}, {{Qt::Key_Down, Qt::Key_Tab}, 0, 0}};
    for (const auto &[keys, expected, chosen] : cases) {
        TembraDropdownPopup dropdown(fruits);
        show(dropdown);
        const QSignalSpy choices(&dropdown, &TembraDropdownPopup::chosen);
        QTest::keyClick(&dropdown, Qt::Key_Space);
        ASSERT_TRUE(dropdown.isOpen());
        for (const Qt::Key key : keys)
            QTest::keyClick(dropdown.list(), key);
        EXPECT_EQ(dropdown.currentIndex(), expected);
        EXPECT_EQ(choices.count(), chosen);
        EXPECT_FALSE(dropdown.isOpen());
    }
}

TEST(Controls, aDropdownOpensAtAPressAndChoosesAtARelease) {
    TembraDropdownPopup dropdown(fruits);
    show(dropdown);
    QTest::mousePress(&dropdown, Qt::LeftButton);
    ASSERT_TRUE(dropdown.isOpen());
    DropdownList &list = *dropdown.list();
    const QPoint third = list.visualRect(list.model()->index(2, 0)).center();
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, Qt::NoModifier, third);
    EXPECT_EQ(dropdown.currentIndex(), 2);
    EXPECT_FALSE(dropdown.isOpen());
    dropdown.setChoices({fruits[3], fruits[2]});
    EXPECT_EQ(dropdown.currentText(), fruits[2]);
    dropdown.setChoices({});
    EXPECT_EQ(dropdown.currentIndex(), -1);
    dropdown.open();
    EXPECT_FALSE(dropdown.isOpen());
}

TEST(Controls, coloursAreThoseOfTheNearestAppearance) {
    QWidget window;
    QWidget inner(&window);
    const QWidget control(&inner);
    const Theme *shelf = &Theme::of(control);
    Theme::setAppearance(window, Appearance::light);
    EXPECT_NE(&Theme::of(control), shelf);
    EXPECT_EQ(&Theme::of(control), &Theme::of(window));
    Theme::setAppearance(inner, Appearance::dark);
    EXPECT_NE(&Theme::of(control), &Theme::of(window));
    EXPECT_EQ(inner.palette().color(QPalette::WindowText), Theme::of(control).text);
}

TEST(Controls, aToolTipIsShownOnceAndGoesWithThePointer) {
    QWidget window;
    TembraToolTip::set(window, QStringLiteral("Help"));
    window.show();
    for (int times = 0; times < 2; ++times) {
        QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), window.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&window, &help);
    }
    const auto tips = window.findChildren<TembraToolTip *>();
    ASSERT_EQ(tips.size(), 1);
    EXPECT_EQ(tips.first()->text(), QStringLiteral("Help"));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&window, &leave);
    EXPECT_TRUE(window.findChildren<TembraToolTip *>().isEmpty());
}

} // namespace
} // namespace tembra
