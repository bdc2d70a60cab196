#include "editor/DrawnAnnotations.h"
#include "editor/canvas/OpenCanvas.h"
#include "editor/canvas/ToolKeys.h"
#include "editor/window/EditorControlsState.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tembra {
namespace {

using namespace annotations;

class CanvasKeysTest : public testing::Test {
protected:
    const ScreenshotAnnotation box = shape(Kind::rectangle, {100, 100, 60, 40}, red, 4);
    const ScreenshotAnnotation ring = shape(Kind::ellipse, {300, 100, 60, 40}, blue, 4);
    OpenCanvas open{{box, ring}};
    ScreenshotCanvasView &canvas = open.canvas;

    void select(const ScreenshotAnnotation &one) { open.document.setSelectedIDs({one.id}); }
};

TEST_F(CanvasKeysTest, lettersChooseTools) {
    const std::tuple<Qt::Key, EditorTool, BlurMode> cases[]{
        {Qt::Key_A, EditorTool::arrow, BlurMode::area},   {Qt::Key_P, EditorTool::pencil, BlurMode::area},
        {Qt::Key_L, EditorTool::line, BlurMode::area},    {Qt::Key_R, EditorTool::rectangle, BlurMode::area},
        {Qt::Key_E, EditorTool::ellipse, BlurMode::area}, {Qt::Key_O, EditorTool::ellipse, BlurMode::area},
        {Qt::Key_T, EditorTool::text, BlurMode::area},    {Qt::Key_N, EditorTool::number, BlurMode::area},
        {Qt::Key_W, EditorTool::blur, BlurMode::text},    {Qt::Key_B, EditorTool::blur, BlurMode::area},
        {Qt::Key_C, EditorTool::crop, BlurMode::area},    {Qt::Key_V, EditorTool::select, BlurMode::area}};
    for (const auto &[key, tool, mode] : cases) {
        open.key(key);
        EXPECT_EQ(canvas.tool(), tool) << key;
        EXPECT_EQ(canvas.blurMode(), mode) << key;
        open.key(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(canvas.tool(), tool);
    }
}

TEST_F(CanvasKeysTest, escapeGivesUpOneThingMore) {
    select(box);
    canvas.setTool(EditorTool::rectangle);
    open.press({20, 200});
    open.move({60, 260});
    open.key(Qt::Key_Escape);
    open.move({80, 280});
    open.release();
    EXPECT_EQ(open.annotations().size(), 2U);
    EXPECT_EQ(canvas.tool(), EditorTool::rectangle);
    open.key(Qt::Key_Escape);
    EXPECT_EQ(canvas.tool(), EditorTool::select);
    select(box);
    open.key(Qt::Key_Escape);
    EXPECT_TRUE(open.document.selectedIDs().isEmpty());
    EXPECT_FALSE(open.document.history().canUndo());
}

TEST_F(CanvasKeysTest, arrowsMoveAndGrow) {
    select(box);
    open.keys({Qt::Key_Right, Qt::Key_Right, Qt::Key_Up});
    open.key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(open.annotations()[0].shapeRect(), QRectF(102, 109, 60, 40));
    EXPECT_EQ(open.document.history().count(), 1);
    open.key(Qt::Key_Right, Qt::AltModifier);
    open.key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(open.annotations()[0].shapeRect(), QRectF(102, 109, 61, 50));
    canvas.undoEdit();
    canvas.undoEdit();
    EXPECT_EQ(open.annotations()[0], box);
    open.key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(open.annotations()[0].shapeRect().left(), 102);
}

TEST_F(CanvasKeysTest, ordersResizesColoursAndDeletes) {
    select(box);
    const std::pair<Qt::Key, bool> orders[]{
        {Qt::Key_PageUp, true}, {Qt::Key_PageDown, false}, {Qt::Key_Home, true}, {Qt::Key_End, false}};
    for (const auto &[key, isOnTop] : orders) {
        open.key(key);
        EXPECT_EQ(open.last().id == box.id, isOnTop) << key;
    }
    open.keys({Qt::Key_BracketRight, Qt::Key_BracketRight});
    EXPECT_EQ(open.annotations()[0].width, 6);
    open.keys({Qt::Key_BracketLeft, Qt::Key_BracketLeft});
    EXPECT_EQ(open.annotations()[0], box);
    QSignalSpy colours(&canvas, &ScreenshotCanvasView::colorChosen);
    open.keys({Qt::Key_1, Qt::Key_9, Qt::Key_0});
    ASSERT_EQ(colours.size(), 2);
    EXPECT_EQ(colours[0][0].toInt(), 1);
    EXPECT_EQ(colours[1][0].toInt(), 9);
    open.key(Qt::Key_Backspace);
    EXPECT_EQ(open.annotations(), std::vector{ring});
}

TEST_F(CanvasKeysTest, tabGoesFromOneToTheNextAndOut) {
    const CanvasViewport viewport = canvas.viewport();
    open.key(Qt::Key_Tab);
    EXPECT_EQ(open.document.selectedIDs(), QSet<QUuid>{box.id});
    open.key(Qt::Key_Tab);
    EXPECT_EQ(open.document.selectedIDs(), QSet<QUuid>{ring.id});
    open.key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(open.document.selectedIDs(), QSet<QUuid>{box.id});
    open.keys({Qt::Key_Tab, Qt::Key_Tab});
    EXPECT_TRUE(open.document.selectedIDs().isEmpty());
    EXPECT_EQ(canvas.viewport(), viewport);
}

// Everything can be made without a pointer.
TEST_F(CanvasKeysTest, returnDrawsInTheMiddle) {
    const QRectF image(0, 0, 600, 400);
    const std::tuple<EditorTool, Kind, QString> cases[]{
        {EditorTool::arrow, Kind::arrow, QStringLiteral("Draw arrow")},
        {EditorTool::pencil, Kind::pencil, QStringLiteral("Draw stroke")},
        {EditorTool::line, Kind::line, QStringLiteral("Draw line")},
        {EditorTool::rectangle, Kind::rectangle, QStringLiteral("Draw rectangle")},
        {EditorTool::ellipse, Kind::ellipse, QStringLiteral("Draw ellipse")},
        {EditorTool::number, Kind::number, QStringLiteral("Add number")},
        {EditorTool::blur, Kind::blur, QStringLiteral("Blur")}};
    for (const auto &[tool, kind, name] : cases) {
        canvas.setTool(tool);
        open.key(Qt::Key_Return);
        EXPECT_EQ(open.last().kind, kind);
        EXPECT_EQ(open.document.history().undoText(), name);
        EXPECT_LE(QLineF(open.last().bounds().center(), image.center()).length(), 3) << name.toStdString();
        EXPECT_EQ(open.document.selectedIDs(), QSet<QUuid>{open.last().id});
    }
    canvas.setTool(EditorTool::text);
    open.key(Qt::Key_Return);
    EXPECT_TRUE(canvas.isTyping());
}

TEST_F(CanvasKeysTest, numbersEndAt9999) {
    open.document.apply({number({50, 50}, 9'999, 40, red)}, {}, QStringLiteral("Test"));
    QSignalSpy failures(&canvas, &ScreenshotCanvasView::failed);
    canvas.setTool(EditorTool::number);
    open.key(Qt::Key_Return);
    open.click({300, 300});
    EXPECT_EQ(failures.size(), 2);
    EXPECT_EQ(open.annotations().size(), 1U);
    canvas.selectAll();
    canvas.duplicateObject();
    EXPECT_EQ(failures.size(), 3);
    EXPECT_EQ(open.annotations().size(), 1U);
}

TEST_F(CanvasKeysTest, numbersGoOnFromWhatWasSaid) {
    canvas.setTool(EditorTool::number);
    canvas.restyle({.number = 7});
    EXPECT_EQ(editorDockState(canvas).number, 7);
    open.click({50, 300});
    open.click({150, 300});
    EXPECT_EQ(open.last().number->value, 8);
    // Moving the first one counts for nothing.
    select(open.annotations()[2]);
    open.drag({50, 300}, {50, 350});
    ASSERT_EQ(open.annotations().size(), 4U);
    open.click({250, 300});
    EXPECT_EQ(open.last().number->value, 9);
}

TEST_F(CanvasKeysTest, cropsByKeys) {
    canvas.setTool(EditorTool::ellipse);
    open.key(Qt::Key_C);
    ASSERT_TRUE(canvas.cropSession());
    EXPECT_EQ(editorDockState(canvas).crop, QSize(600, 400));
    open.key(Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
    open.key(Qt::Key_Right);
    EXPECT_EQ(canvas.cropSession()->rect(), QRectF(1, 0, 590, 400));
    // The keys stay with the crop.
    open.press({-20, -20});
    open.release();
    open.key(Qt::Key_Right);
    open.key(Qt::Key_Return);
    EXPECT_FALSE(canvas.cropSession());
    EXPECT_EQ(open.document.cropRect(), QRectF(2, 0, 590, 400));
    EXPECT_EQ(canvas.viewport().content(), QRectF(2, 0, 590, 400));
    EXPECT_EQ(canvas.tool(), EditorTool::ellipse);
    EXPECT_TRUE(canvas.hasFocus());
    canvas.undoEdit();
    EXPECT_FALSE(open.document.cropRect());
    EXPECT_EQ(canvas.viewport().content(), QRectF(0, 0, 600, 400));

    open.key(Qt::Key_C);
    open.key(Qt::Key_Left);
    open.key(Qt::Key_Left, Qt::AltModifier);
    canvas.undoEdit();
    canvas.redoEdit();
    open.key(Qt::Key_Escape);
    EXPECT_FALSE(open.document.cropRect());
    EXPECT_EQ(canvas.tool(), EditorTool::ellipse);
    // From another part of the window.
    canvas.setTool(EditorTool::select);
    canvas.setTool(EditorTool::crop);
    EXPECT_TRUE(canvas.handleKey(QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, {})));
    EXPECT_FALSE(canvas.cropSession());
    EXPECT_TRUE(open.document.selectedIDs().isEmpty());
}

TEST_F(CanvasKeysTest, changesOfStyleActAndAreRemembered) {
    select(box);
    open.canvas.restyle({.color = green, .size = 12, .isFilled = true});
    EXPECT_EQ(open.annotations()[0].color, green);
    EXPECT_EQ(open.annotations()[0].filled, true);
    EXPECT_EQ(open.annotations()[1], ring);
    canvas.setTool(EditorTool::rectangle);
    open.drag({20, 200}, {80, 280});
    EXPECT_EQ(open.last().width, 12);
    EXPECT_EQ(open.last().filled, true);
    EXPECT_EQ(open.last().color.toColor(), green.toColor());
    canvas.setTool(EditorTool::arrow);
    canvas.stepSize(EditorTool::line, 3);
    const std::size_t steps = static_cast<std::size_t>(open.document.history().count());
    canvas.setTool(EditorTool::line);
    const double size = *editorDockState(canvas).size;
    canvas.stepSize(EditorTool::line, -3);
    EXPECT_LT(*editorDockState(canvas).size, size);
    EXPECT_EQ(static_cast<std::size_t>(open.document.history().count()), steps);
}

TEST_F(CanvasKeysTest, copiesBetweenDocuments) {
    select(box);
    canvas.copy();
    offerWhatWasCopied(open.pasteboard);
    canvas.paste();
    EXPECT_EQ(open.annotations().size(), 3U);
    canvas.cut();
    EXPECT_EQ(open.annotations().size(), 2U);
    ScreenshotEditDocument other(loadedWith({}, {600, 400}));
    canvas.setDocument(&other, nullptr);
    canvas.paste();
    ASSERT_EQ(other.annotations().size(), 1U);
    EXPECT_EQ(other.annotations()[0].points, box.points);
    open.pasteboard.refuses = true;
    QSignalSpy failures(&canvas, &ScreenshotCanvasView::failed);
    canvas.cut();
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(other.annotations().size(), 1U);
    canvas.setDocument(&open.document, nullptr);
}

TEST_F(CanvasKeysTest, nothingHappensWithoutADocument) {
    canvas.setDocument(nullptr, nullptr);
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Left, Qt::Key_Delete,
                              Qt::Key_1, Qt::Key_Home, Qt::Key_Escape})
        open.key(key);
    open.drag({10, 10}, {100, 100});
    open.doubleClick({50, 50});
    canvas.undoEdit();
    canvas.selectAll();
    canvas.paste();
    canvas.restyle({.size = 3});
    canvas.zoomIn();
    EXPECT_EQ(open.annotations(), (std::vector{box, ring}));
    (void)canvas.grab();
}

} // namespace
} // namespace tembra
