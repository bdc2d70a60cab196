#include "editor/DrawnAnnotations.h"
#include "editor/canvas/OpenCanvas.h"

#include <QWheelEvent>

#include <gtest/gtest.h>

namespace tembra {
namespace {

using namespace annotations;

class CanvasPointerTest : public testing::Test {
protected:
    const ScreenshotAnnotation box = shape(Kind::rectangle, {100, 100, 60, 40}, red, 4, true);
    const ScreenshotAnnotation ring = shape(Kind::ellipse, {300, 100, 60, 40}, blue, 4, true);
    OpenCanvas open{{box, ring}};
    ScreenshotCanvasView &canvas = open.canvas;

    [[nodiscard]] QSet<QUuid> selected() const { return open.document.selectedIDs(); }
    void wheel(QPointF at, int angle, Qt::KeyboardModifiers modifiers) {
        const QPointF view = canvas.viewport().toView(at);
        QWheelEvent event(view, canvas.mapToGlobal(view), {}, {0, angle}, {}, modifiers, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&canvas, &event);
    }
};

TEST_F(CanvasPointerTest, everyToolDrawsWhatItIs) {
    const std::tuple<EditorTool, Kind, bool> cases[]{
        {EditorTool::arrow, Kind::arrow, true},     {EditorTool::line, Kind::line, true},
        {EditorTool::pencil, Kind::pencil, false},  {EditorTool::rectangle, Kind::rectangle, true},
        {EditorTool::ellipse, Kind::ellipse, true}, {EditorTool::number, Kind::number, true},
        {EditorTool::blur, Kind::blur, true}};
    for (const auto &[tool, kind, isSelected] : cases) {
        open.document.setSelectedIDs({});
        canvas.setTool(tool);
        const std::size_t count = open.annotations().size();
        open.drag({20, 200}, {120, 300});
        ASSERT_EQ(open.annotations().size(), count + 1);
        EXPECT_EQ(open.last().kind, kind);
        EXPECT_EQ(selected().contains(open.last().id), isSelected);
        EXPECT_EQ(canvas.tool(), tool);
        if (kind != Kind::number) {
            EXPECT_EQ(open.last().points.front(), (EditorPoint{20, 200}));
            EXPECT_EQ(open.last().points.back(), (EditorPoint{120, 300}));
        }
        canvas.undoEdit();
        EXPECT_EQ(open.annotations(), (std::vector{box, ring}));
        // A click draws a dot or a number, and nothing else.
        open.click({20, 350});
        EXPECT_EQ(open.annotations().size() == 3U, kind == Kind::pencil || kind == Kind::number);
        open.document.history().setIndex(0);
    }
}

TEST_F(CanvasPointerTest, selectsAddsAndBands) {
    open.click({130, 120});
    EXPECT_EQ(selected(), QSet<QUuid>{box.id});
    open.click({330, 120}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (QSet<QUuid>{box.id, ring.id}));
    open.click({130, 120}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), QSet<QUuid>{ring.id});
    open.click({500, 300});
    EXPECT_TRUE(selected().isEmpty());
    open.drag({80, 80}, {180, 160});
    EXPECT_EQ(selected(), QSet<QUuid>{box.id});
    open.drag({280, 80}, {380, 160}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (QSet<QUuid>{box.id, ring.id}));
    EXPECT_FALSE(open.document.history().canUndo());
}

TEST_F(CanvasPointerTest, movesResizesAndCopies) {
    open.drag({130, 120}, {150, 220}, Qt::ControlModifier);
    EXPECT_EQ(open.annotations()[0].shapeRect(), QRectF(120, 200, 60, 40));
    open.drag({180, 240}, {200, 270}, Qt::ControlModifier);
    EXPECT_EQ(open.annotations()[0].shapeRect(), QRectF(120, 200, 80, 70));
    EXPECT_EQ(open.document.history().count(), 2);
    open.drag({160, 230}, {460, 330}, Qt::AltModifier | Qt::ControlModifier);
    ASSERT_EQ(open.annotations().size(), 3U);
    EXPECT_EQ(open.annotations()[0].shapeRect(), QRectF(120, 200, 80, 70));
    EXPECT_EQ(open.last().shapeRect(), QRectF(420, 300, 80, 70));
    EXPECT_EQ(selected(), QSet<QUuid>{open.last().id});
    // Only a click.
    open.click({160, 230}, Qt::AltModifier);
    EXPECT_EQ(open.annotations().size(), 3U);
    open.document.history().setIndex(0);
    EXPECT_EQ(open.annotations(), (std::vector{box, ring}));
}

TEST_F(CanvasPointerTest, undoInTheMiddleOfADragEndsIt) {
    open.drag({130, 120}, {150, 220}, Qt::ControlModifier);
    open.press({150, 220});
    open.move({250, 300});
    canvas.undoEdit();
    open.move({260, 310});
    open.release();
    EXPECT_EQ(open.document.history().index(), 1) << "what was done before stays";
    canvas.undoEdit();
    EXPECT_EQ(open.annotations(), (std::vector{box, ring}));
    EXPECT_TRUE(open.document.history().canRedo());
    open.press({130, 120});
    open.move({230, 300});
    canvas.redoEdit();
    open.release();
    EXPECT_FALSE(open.document.history().canRedo()) << "the drag went on, and is what was done last";
}

// A modifier counts from when it is pressed, wherever the pointer rests.
TEST_F(CanvasPointerTest, modifiersChangeWhatIsBeingDrawn) {
    canvas.setTool(EditorTool::rectangle);
    open.press({20, 200});
    open.move({120, 240});
    QTest::keyPress(canvas.windowHandle(), Qt::Key_Shift);
    const QImage square = canvas.grab().toImage();
    QTest::keyRelease(canvas.windowHandle(), Qt::Key_Shift, Qt::ShiftModifier);
    const QImage wide = canvas.grab().toImage();
    EXPECT_NE(square, wide);
    open.release();
    EXPECT_EQ(open.last().shapeRect(), QRectF(20, 200, 100, 40));
}

TEST_F(CanvasPointerTest, aToolTakesHoldOfWhatIsSelectedAlone) {
    canvas.setTool(EditorTool::rectangle);
    open.drag({120, 110}, {220, 210});
    EXPECT_EQ(open.annotations().size(), 3U);
    open.drag({220, 210}, {250, 240}, Qt::ControlModifier);
    ASSERT_EQ(open.annotations().size(), 3U);
    EXPECT_EQ(open.last().shapeRect(), QRectF(120, 110, 130, 130));
}

TEST_F(CanvasPointerTest, zoomsAboutThePointerAndPans) {
    const QPointF view(600, 300);
    const auto zoom = [&](int notches) {
        for (int notch = 0; notch < notches; ++notch)
            wheel(canvas.viewport().toImage(view), 120, Qt::ControlModifier);
    };
    // Until it fills the view.
    zoom(5);
    const QPointF at = canvas.viewport().toImage(view);
    zoom(4);
    EXPECT_GT(canvas.viewport().scale(), 4);
    EXPECT_LE(QLineF(canvas.viewport().toView(at), view).length(), 4);
    const auto origin = [this] { return canvas.viewport().toView(QPointF(300, 200)); };
    const auto panned = [&](const std::function<void()> &way) {
        const QPointF before = origin();
        way();
        return origin() - before;
    };
    const auto drag = [&](Qt::MouseButton button) {
        const QPointF from = canvas.viewport().toImage({500, 400});
        open.press(from, {}, button);
        open.move(from + QPointF(10, 5));
        open.release({}, button);
    };
    const QPointF way = QPointF(10, 5) * canvas.viewport().zoom();
    EXPECT_LE((panned([&] { drag(Qt::MiddleButton); }) - way).manhattanLength(), 2);
    EXPECT_LE((panned([&] {
                   QTest::keyPress(canvas.windowHandle(), Qt::Key_Space);
                   drag(Qt::LeftButton);
                   QTest::keyRelease(canvas.windowHandle(), Qt::Key_Space);
               }) -
               way)
                  .manhattanLength(),
              2);
    EXPECT_EQ(panned([&] { wheel({300, 200}, -120, {}); }), QPointF(0, -60));
    EXPECT_EQ(panned([&] { wheel({300, 200}, -120, Qt::ShiftModifier); }), QPointF(-60, 0));
    EXPECT_EQ(open.annotations(), (std::vector{box, ring}));
    // The space key went elsewhere while it was held.
    QTest::keyPress(canvas.windowHandle(), Qt::Key_Space);
    canvas.clearFocus();
    EXPECT_EQ(panned([&] { drag(Qt::LeftButton); }), QPointF());
    canvas.fitToWindow();
    EXPECT_EQ(panned([&] { wheel({300, 200}, -120, {}); }), QPointF());
}

TEST_F(CanvasPointerTest, blursWordsByClickAndByDrag) {
    canvas.setWords({QRectF(50, 300, 60, 20), QRectF(120, 300, 60, 20), QRectF(400, 300, 60, 20)});
    canvas.setTool(EditorTool::blur);
    canvas.setBlurMode(BlurMode::text);
    open.click({80, 310});
    ASSERT_EQ(open.annotations().size(), 3U);
    EXPECT_TRUE(open.last().shapeRect().contains(QRectF(50, 300, 60, 20)));
    EXPECT_FALSE(open.last().shapeRect().intersects(QRectF(120, 300, 60, 20)));
    EXPECT_EQ(open.document.history().undoText(), QStringLiteral("Blur words"));
    canvas.undoEdit();
    open.drag({30, 295}, {430, 330});
    ASSERT_EQ(open.annotations().size(), 4U);
    EXPECT_TRUE(selected().isEmpty());
    canvas.undoEdit();
    open.click({250, 350});
    EXPECT_EQ(open.annotations().size(), 2U);
}

TEST_F(CanvasPointerTest, cropsByTheHandlesAndByADoubleClick) {
    canvas.setTool(EditorTool::crop);
    ASSERT_TRUE(canvas.cropSession());
    open.drag({600, 400}, {500, 300});
    EXPECT_EQ(canvas.cropSession()->rect(), QRectF(0, 0, 500, 300));
    open.drag({250, 150}, {290, 160});
    EXPECT_EQ(canvas.cropSession()->rect(), QRectF(40, 10, 500, 300));
    open.doubleClick({250, 150});
    EXPECT_FALSE(canvas.cropSession());
    EXPECT_EQ(open.document.cropRect(), QRectF(40, 10, 500, 300));
    // What is pressed is where it is seen.
    open.click({130, 120});
    EXPECT_EQ(selected(), QSet<QUuid>{box.id});
}

TEST_F(CanvasPointerTest, takesTheDocumentThatIsShown) {
    canvas.setTool(EditorTool::crop);
    ScreenshotEditDocument other(loadedWith({}, {300, 200}));
    canvas.setDocument(&other, nullptr);
    EXPECT_FALSE(canvas.cropSession());
    canvas.setTool(EditorTool::text);
    open.click({100, 100});
    EXPECT_TRUE(canvas.isTyping());
    canvas.setDocument(&open.document, nullptr);
    EXPECT_FALSE(canvas.isTyping());
    EXPECT_TRUE(other.annotations().empty());
}

} // namespace
} // namespace tembra
