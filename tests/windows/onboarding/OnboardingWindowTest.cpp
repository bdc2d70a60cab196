#include "windows/onboarding/OnboardingWindow.h"

#include "controls/TembraButton.h"
#include "controls/TembraLinkButton.h"
#include "support/PseudoLocale.h"
#include "windows/onboarding/OnboardingIllustration.h"

#include <QApplication>
#include <QLabel>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

using Step = OnboardingStep;

// The style of a desktop that wants no motion.
class StillStyle final : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override {
        return hint == SH_Widget_Animation_Duration
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

class OnboardingWindowTest : public testing::Test {
protected:
    void show(const OnboardingState &state) {
        window.apply(state);
        window.present();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    // As the window gets it: the focus decides.
    void press(Qt::Key key) { QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, key); }
    [[nodiscard]] QAbstractButton *button(const char *name) const {
        for (auto *button : window.findChildren<QAbstractButton *>()) {
            const QString known =
                button->accessibleName().isEmpty() ? button->text() : button->accessibleName();
            if (button->isVisible() && known == QString::fromUtf8(name))
                return button;
        }
        return nullptr;
    }
    [[nodiscard]] OnboardingIllustration &illustration() const {
        return *window.findChild<OnboardingIllustration *>();
    }
    [[nodiscard]] bool shows(const char *text) const {
        const auto labels = window.findChildren<QLabel *>();
        return std::ranges::any_of(labels, [text](const QLabel *label) {
            return label->isVisible() && (label->text() == QString::fromUtf8(text) ||
                                          label->accessibleName() == QString::fromUtf8(text));
        });
    }

    OnboardingWindow window;
};

const OnboardingState introduction;
const OnboardingState suggesting{
    .step = Step::folder, .reached = Step::folder, .path = QStringLiteral("~/Pictures/Screenshots")};
const OnboardingState asking{.step = Step::folder, .reached = Step::folder};
const OnboardingState offering{.step = Step::folder,
                               .reached = Step::folder,
                               .folder = OnboardingState::Folder::offeringMove,
                               .path = QStringLiteral("~/Shots"),
                               .isChosen = true,
                               .screenshotsOnDesktop = 12};
const OnboardingState waiting{.step = Step::firstScreenshot, .reached = Step::firstScreenshot};
const OnboardingState caught{
    .step = Step::firstScreenshot, .reached = Step::firstScreenshot, .hasCaught = true};

} // namespace

TEST_F(OnboardingWindowTest, eachStateHasItsWordsAndItsButtons) {
    struct Case {
        OnboardingState state;
        const char *text;
        const char *primary;
        const char *other;
    };
    for (const Case &c : {Case{introduction, "Your screenshots, always at hand", "Continue", nullptr},
                          Case{suggesting, "~/Pictures/Screenshots", "Use This Folder", "Choose Folder"},
                          Case{asking, "Where should screenshots go?", "Choose Folder", nullptr},
                          Case{offering, "Bring along what you have?", "Move Screenshots", "Leave Them"},
                          Case{waiting, "Take your first screenshot", nullptr, "Skip"},
                          Case{caught, "Got it! First one caught", "Done", nullptr}}) {
        show(c.state);
        EXPECT_TRUE(shows(c.text)) << c.text;
        const QSignalSpy primary(&window, &OnboardingWindow::primaryRequested);
        const QSignalSpy secondary(&window, &OnboardingWindow::secondaryRequested);
        const QSignalSpy link(&window, &OnboardingWindow::linkRequested);
        if (c.primary) {
            ASSERT_TRUE(button(c.primary)) << c.primary;
            button(c.primary)->click();
            EXPECT_EQ(primary.count(), 1) << c.text;
        }
        if (c.other) {
            ASSERT_TRUE(button(c.other)) << c.other;
            button(c.other)->click();
            EXPECT_EQ(secondary.count() + link.count(), 1) << c.text;
        }
    }
}

TEST_F(OnboardingWindowTest, isGoneThroughByKeys) {
    const QSignalSpy primary(&window, &OnboardingWindow::primaryRequested);
    const QSignalSpy secondary(&window, &OnboardingWindow::secondaryRequested);
    const QSignalSpy step(&window, &OnboardingWindow::stepRequested);
    const QSignalSpy closed(&window, &OnboardingWindow::closed);
    show(suggesting);
    press(Qt::Key_Return);
    EXPECT_EQ(primary.count(), 1);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_EQ(secondary.count(), 1);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Backspace})
        press(key);
    EXPECT_EQ(step.count(), 2);
    press(Qt::Key_Right);
    EXPECT_EQ(step.count(), 2) << "the last step was not reached yet";
    show(waiting);
    press(Qt::Key_Return);
    EXPECT_EQ(primary.count(), 1) << "there is nothing to end before a capture but by Skip";
    press(Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(OnboardingWindowTest, dotsLeadToTheStepsThatWereReached) {
    const QSignalSpy step(&window, &OnboardingWindow::stepRequested);
    show(suggesting);
    ASSERT_TRUE(button("Step 1 of 3") && button("Step 2 of 3") && button("Step 3 of 3"));
    EXPECT_TRUE(button("Step 2 of 3")->isChecked());
    EXPECT_FALSE(button("Step 3 of 3")->isEnabled());
    button("Step 1 of 3")->click();
    ASSERT_EQ(step.count(), 1);
    EXPECT_EQ(step[0][0].value<OnboardingStep>(), Step::introduction);
    EXPECT_TRUE(button("Step 2 of 3")->isChecked()) << "until the next state says so";
}

TEST_F(OnboardingWindowTest, nothingCanBePressedWhileSomethingIsUnderWay) {
    OnboardingState moving = offering;
    moving.folder = OnboardingState::Folder::moving;
    const QSignalSpy step(&window, &OnboardingWindow::stepRequested);
    show(moving);
    for (const char *name : {"Moving…", "Leave Them", "Step 1 of 3"})
        EXPECT_FALSE(button(name)->isEnabled()) << name;
    press(Qt::Key_Left);
    EXPECT_EQ(step.count(), 0);
}

TEST_F(OnboardingWindowTest, movesOnlyWhileItIsSeenAndWhereMotionIsWanted) {
    show(introduction);
    EXPECT_TRUE(illustration().isMoving());
    window.hide();
    EXPECT_FALSE(illustration().isMoving());
    show(introduction);
    EXPECT_TRUE(illustration().isMoving());
    show(suggesting);
    EXPECT_FALSE(illustration().isMoving());

    StillStyle still;
    illustration().setStyle(&still);
    show(introduction);
    EXPECT_FALSE(illustration().isMoving());
    EXPECT_EQ(illustration().frame().openness, 1) << "it shows what it would lead to";
    illustration().setStyle(nullptr);
}

TEST_F(OnboardingWindowTest, aLongPathKeepsItsEndsAndTheWindowItsSize) {
    OnboardingState state = suggesting;
    state.path = QStringLiteral("~/") + QString(400, u'x') + QStringLiteral("/Screenshots");
    state.note = QString(300, u'y');
    show(state);
    EXPECT_EQ(window.size(), OnboardingWindow::contentSize);
    EXPECT_TRUE(shows(state.path.toUtf8().constData())) << "to those who have it read to them";
}

TEST_F(OnboardingWindowTest, longTextsFitAndTheWindowCanBeMirrored) {
    for (const OnboardingState &state : {introduction, suggesting, offering, caught}) {
        expectMirrorImage([&state] {
            auto mirrored = std::make_unique<OnboardingWindow>();
            mirrored->apply(state);
            return mirrored;
        });
    }
}
