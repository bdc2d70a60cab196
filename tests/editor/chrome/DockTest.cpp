#include "controls/TembraSegmentedControl.h"
#include "controls/TembraTextField.h"
#include "editor/chrome/CropAspect.h"
#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorNumberControl.h"
#include "editor/chrome/EditorOverlays.h"
#include "editor/chrome/EditorPalette.h"
#include "editor/chrome/EditorSizeControl.h"
#include "editor/chrome/EditorSwatches.h"
#include "editor/chrome/EditorZoomControl.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace tembra {
namespace {

const EditorColor red = editorPalette().front().color;

QAbstractButton *button(const QWidget &in, const QString &name) {
    for (auto *found : in.findChildren<QAbstractButton *>()) {
        const QString called = found->accessibleName().isEmpty() ? found->text() : found->accessibleName();
        if (called == name)
            return found;
    }
    return nullptr;
}

struct Dock : testing::Test {
    Dock() {
        QObject::connect(&dock, &EditorDock::styleChanged, &dock,
                         [this](const EditorStyleChange &change) { changes.push_back(change); });
        QObject::connect(&dock, &EditorDock::toolChosen, &dock,
                         [this](EditorTool tool) { tools.push_back(tool); });
        window.resize(1200, 200);
        window.show();
    }

    void apply(const EditorDockState &state) {
        dock.apply(state);
        dock.resize(dock.sizeHint());
    }
    void click(const QString &name) {
        QAbstractButton *found = button(dock, name);
        ASSERT_NE(found, nullptr) << name.toStdString();
        ASSERT_TRUE(found->isVisible()) << name.toStdString();
        QTest::mouseClick(found, Qt::LeftButton);
    }
    [[nodiscard]] bool shows(const QString &name) const {
        const QAbstractButton *found = button(dock, name);
        return found && found->isVisible();
    }

    QWidget window;
    EditorDock dock{&window};
    std::vector<EditorStyleChange> changes;
    std::vector<EditorTool> tools;
};

void turnWheel(QWidget &over, int angle) {
    const QPointF at = over.rect().center();
    QWheelEvent event(at, over.mapToGlobal(at), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &event);
}

TEST_F(Dock, aControlIsShownWhileItsValueIsSet) {
    struct Case {
        QString name;
        EditorDockState state;
    };
    const Case cases[] = {{QStringLiteral("Red"), {.color = red}},
                          {QStringLiteral("Size"), {.size = 7}},
                          {QStringLiteral("Filled"), {.isFilled = false}},
                          {QStringLiteral("Background"), {.hasBackground = true}},
                          {QStringLiteral("Words"), {.blurMode = BlurMode::area}},
                          {QStringLiteral("Medium"), {.strength = EditorBlur::Strength::light}},
                          {QStringLiteral("Next number"), {.number = 3}},
                          {QStringLiteral("Straighten"), {.canStraighten = true}},
                          {QStringLiteral("Apply"), {.crop = QSize(30, 20)}}};
    for (const Case &shown : cases) {
        apply(shown.state);
        for (const Case &other : cases)
            EXPECT_EQ(shows(other.name), other.name == shown.name)
                << other.name.toStdString() << " with " << shown.name.toStdString();
    }
    apply({.color = red, .size = 7, .crop = QSize(30, 20)});
    EXPECT_FALSE(shows(QStringLiteral("Red"))) << "the crop takes the place of the style";
}

TEST_F(Dock, whatIsClickedIsToldAndShownOnlyWhenItIsSo) {
    apply({.tool = EditorTool::arrow, .color = red, .isFilled = false});
    click(QStringLiteral("Blur"));
    EXPECT_EQ(tools, std::vector{EditorTool::blur});
    EXPECT_TRUE(button(dock, QStringLiteral("Arrow"))->isChecked());
    click(QStringLiteral("Filled"));
    EXPECT_FALSE(button(dock, QStringLiteral("Filled"))->isChecked());
    click(QStringLiteral("Blue"));
    const std::vector<EditorStyleChange> told{{.isFilled = true}, {.color = editorPalette()[3].color}};
    EXPECT_EQ(changes, told);
    apply({.tool = EditorTool::blur, .color = editorPalette()[3].color, .isFilled = true});
    EXPECT_TRUE(button(dock, QStringLiteral("Blur"))->isChecked());
    EXPECT_TRUE(button(dock, QStringLiteral("Filled"))->isChecked());
    EXPECT_TRUE(button(dock, QStringLiteral("Blue"))->isChecked());
    EXPECT_EQ(changes, told) << "what the program sets is not told back";
}

TEST_F(Dock, aColorOfOnesOwnIsShownByTheLastSwatch) {
    const QSignalSpy requests(&dock, &EditorDock::customColorRequested);
    apply({.color = EditorColor{.r = 0.1, .g = 0.2, .b = 0.3, .a = 1}});
    QAbstractButton *custom = button(dock, QStringLiteral("Custom color…"));
    EXPECT_TRUE(custom->isChecked());
    apply({.color = red});
    EXPECT_FALSE(custom->isChecked());
    click(QStringLiteral("Custom color…"));
    EXPECT_EQ(requests.count(), 1);
    EXPECT_FALSE(custom->isChecked()) << "there is none yet";
}

TEST_F(Dock, theBlurIsChosenAndNotToldBack) {
    const QSignalSpy modes(&dock, &EditorDock::blurModeChosen);
    apply({.tool = EditorTool::blur, .blurMode = BlurMode::text, .strength = EditorBlur::Strength::light});
    EXPECT_TRUE(modes.isEmpty());
    EXPECT_TRUE(changes.empty());
    click(QStringLiteral("Area"));
    click(QStringLiteral("Strong"));
    ASSERT_EQ(modes.count(), 1);
    EXPECT_EQ(modes[0][0].value<BlurMode>(), BlurMode::area);
    EXPECT_EQ(changes, (std::vector<EditorStyleChange>{{.strength = EditorBlur::Strength::strong}}));
}

TEST_F(Dock, theWheelChangesSizesInWholeSteps) {
    const QSignalSpy scrolls(&dock, &EditorDock::toolSizeScrolled);
    apply({.size = 7});
    QWidget &line = *button(dock, QStringLiteral("Line"));
    turnWheel(line, 60);
    EXPECT_TRUE(scrolls.isEmpty());
    turnWheel(line, 60);
    turnWheel(line, -240);
    ASSERT_EQ(scrolls.count(), 2);
    EXPECT_EQ(scrolls[0][0].value<EditorTool>(), EditorTool::line);
    EXPECT_EQ(scrolls[0][1].toInt(), 1);
    EXPECT_EQ(scrolls[1][1].toInt(), -2);
    turnWheel(*button(dock, QStringLiteral("Size")), 120);
    EXPECT_EQ(changes, (std::vector<EditorStyleChange>{{.sizeSteps = 1}}));
}

TEST_F(Dock, sizesAreOfferedWithinTheirBounds) {
    apply({.size = 7.5, .smallestSize = 4, .largestSize = 14});
    EXPECT_EQ(dock.findChild<EditorSizeControl *>()->offered(), (std::vector<double>{4, 5, 7, 7.5, 10, 14}));
}

TEST_F(Dock, aNumberIsTypedOrSteppedButNeverZero) {
    apply({.number = 1});
    auto &field = *dock.findChild<EditorNumberControl *>()->findChild<TembraTextField *>();
    click(QStringLiteral("Previous number"));
    apply({.number = -1});
    click(QStringLiteral("Next number"));
    apply({.number = EditorNumber::largest});
    click(QStringLiteral("Next number"));
    const auto type = [&](const QString &text) {
        field.selectAll();
        QTest::keyClicks(&field, text);
        QTest::keyClick(&field, Qt::Key_Return);
    };
    for (const QString &text : {QStringLiteral("0"), QStringLiteral("x"), QStringLiteral("10000")}) {
        type(text);
        EXPECT_TRUE(field.isInvalid()) << text.toStdString();
    }
    type(QStringLiteral("42"));
    EXPECT_FALSE(field.isInvalid());
    EXPECT_EQ(changes, (std::vector<EditorStyleChange>{{.number = -1}, {.number = 1}, {.number = 42}}));
}

TEST_F(Dock, tabReachesAGroupOnceAndArrowsMoveWithin) {
    apply({.tool = EditorTool::arrow, .color = red});
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    button(dock, QStringLiteral("Arrow"))->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_EQ(QApplication::focusWidget(), button(dock, QStringLiteral("Pencil")));
    EXPECT_TRUE(tools.empty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(tools, std::vector{EditorTool::pencil});
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), button(dock, QStringLiteral("Red")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_EQ(QApplication::focusWidget(), button(dock, QStringLiteral("Custom color…")));
}

TEST_F(Dock, besideTheNoticeThePointerReachesWhatLiesBelow) {
    apply({.color = red, .size = 7, .notice = QStringLiteral("Saved."), .isBusy = true});
    dock.move(0, 0);
    EXPECT_EQ(window.childAt(2, 2), nullptr);
    EXPECT_NE(window.childAt(dock.width() / 2, 2), nullptr);
    EXPECT_NE(window.childAt(dock.barRect().center()), nullptr);
}

TEST_F(Dock, nothingOverlapsWhereverThereIsRoom) {
    EditorZoomControl zoom(&window);
    const EditorDockState states[] = {{.color = red},
                                      {.color = red, .size = 7, .number = 3, .notice = QStringLiteral("…")},
                                      {.color = red, .size = 7, .canStraighten = true},
                                      {.crop = QSize(1920, 1080)},
                                      {}};
    for (const int width : {600, 800, 1080, 1800}) {
        const QRect area(120, 52, width, 600);
        for (const EditorDockState &state : states) {
            dock.apply(state);
            placeEditorOverlays(dock, zoom, area);
            EXPECT_TRUE(area.contains(dock.geometry())) << width;
            EXPECT_TRUE(area.contains(zoom.geometry())) << width;
            EXPECT_FALSE(dock.geometry().intersects(zoom.geometry())) << width;
        }
    }
}

TEST_F(Dock, theToolsStayInTheirPlaces) {
    EditorZoomControl zoom(&window);
    const QRect area(120, 52, 1'400, 600);
    const EditorDockState states[] = {{.color = red, .size = 7},
                                      {.color = red},
                                      {.color = red, .size = 7, .hasBackground = true},
                                      {.blurMode = BlurMode::area, .strength = EditorBlur::Strength::light},
                                      {.crop = QSize(1920, 1080)}};
    QSet<int> places;
    for (const EditorDockState &state : states) {
        dock.apply(state);
        placeEditorOverlays(dock, zoom, area);
        EXPECT_FALSE(dock.isStacked());
        places += dock.geometry().left();
    }
    EXPECT_EQ(places.size(), 1);
}

TEST(CropAspect, isToldAsPeopleCallIt) {
    const std::pair<QSize, QString> cases[] = {{{1200, 800}, QStringLiteral("3:2")},
                                               {{800, 1200}, QStringLiteral("2:3")},
                                               {{1920, 1080}, QStringLiteral("16:9")},
                                               {{1921, 1080}, QStringLiteral("16:9")},
                                               {{1930, 1080}, QStringLiteral("≈ 16:9")},
                                               {{1080, 1930}, QStringLiteral("≈ 9:16")},
                                               {{1280, 800}, QStringLiteral("16:10")},
                                               {{700, 100}, QStringLiteral("7:1")},
                                               {{1013, 700}, QStringLiteral("1.45:1")},
                                               {{1, 1}, QStringLiteral("1:1")},
                                               {{0, 5}, QString()}};
    for (const auto &[crop, told] : cases)
        EXPECT_EQ(cropAspect(crop), told) << crop.width() << " x " << crop.height();
}

TEST(SizeControl, beginsWithASizeWhateverWasInItsMemory) {
    alignas(EditorSizeControl) std::array<unsigned char, sizeof(EditorSizeControl)> memory{};
    memory.fill(0xff);
    auto *const control = new (memory.data()) EditorSizeControl;
    EXPECT_EQ(control->findChild<QAbstractButton *>()->text(), QStringLiteral("1 px"));
    std::destroy_at(control);
}

} // namespace
} // namespace tembra
