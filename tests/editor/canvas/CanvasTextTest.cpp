#include "editor/DrawnAnnotations.h"
#include "editor/canvas/CanvasTextEditor.h"
#include "editor/canvas/OpenCanvas.h"
#include "editor/model/AnnotationText.h"

#include <QClipboard>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <gtest/gtest.h>

namespace tembra {
namespace {

using namespace annotations;

class CanvasTextTest : public testing::Test {
protected:
    const ScreenshotAnnotation words = text({100, 100}, QStringLiteral("words"), 24, red);
    OpenCanvas open{{words}};

    [[nodiscard]] CanvasTextEditor &editor() {
        return *static_cast<CanvasTextEditor *>(open.child("tembra::CanvasTextEditor"));
    }
    void begin(QPointF at = {300, 200}) {
        open.canvas.setTool(EditorTool::text);
        open.click(at);
    }
    void select(const QString &pasted) { QApplication::clipboard()->setText(pasted); }
};

TEST_F(CanvasTextTest, typesWhereThePressWas) {
    begin();
    ASSERT_TRUE(open.canvas.isTyping());
    open.type(QStringLiteral("vap"));
    // Letters are letters.
    EXPECT_EQ(open.canvas.tool(), EditorTool::text);
    EXPECT_EQ(open.annotations().size(), 1U);
    open.key(Qt::Key_Escape);
    EXPECT_FALSE(open.canvas.isTyping());
    ASSERT_EQ(open.annotations().size(), 2U);
    EXPECT_EQ(open.last().text->string, QStringLiteral("vap"));
    EXPECT_TRUE(open.last().bounds().contains({300, 200}));
    EXPECT_EQ(open.document.history().undoText(), QStringLiteral("Add text"));
    EXPECT_TRUE(open.document.selectedIDs().contains(open.last().id));
    EXPECT_TRUE(open.canvas.hasFocus());
}

TEST_F(CanvasTextTest, endsByAPressBesideItAndByTab) {
    const std::function<void()> ends[]{[this] {
                                           open.click({500, 350});
                                       },
                                       [this] { open.key(Qt::Key_Tab); },
                                       [this] { open.key(Qt::Key_Backtab, Qt::ShiftModifier); },
                                       [this] { open.key(Qt::Key_Return, Qt::ControlModifier); },
                                       [this] { open.canvas.setTool(EditorTool::arrow); }};
    for (const auto &end : ends) {
        const std::size_t count = open.annotations().size();
        begin({300, 300});
        ASSERT_TRUE(open.canvas.isTyping());
        open.type(QStringLiteral("x"));
        end();
        EXPECT_FALSE(open.canvas.isTyping());
        EXPECT_EQ(open.annotations().size(), count + 1);
        open.document.history().undo();
        EXPECT_EQ(open.annotations(), std::vector{words});
    }
}

TEST_F(CanvasTextTest, isTypedAgainByADoubleClickAndGoesWhenItIsEmpty) {
    open.doubleClick({115, 115});
    ASSERT_TRUE(open.canvas.isTyping());
    EXPECT_EQ(open.annotations(), std::vector{words});
    open.key(Qt::Key_Escape);
    EXPECT_FALSE(open.document.history().canUndo());

    open.key(Qt::Key_Return);
    ASSERT_TRUE(open.canvas.isTyping());
    open.type(QStringLiteral(" more"));
    open.canvas.undoEdit();
    open.canvas.redoEdit();
    EXPECT_TRUE(open.canvas.isTyping()) << "what is typed has its own undo";
    open.key(Qt::Key_Escape);
    EXPECT_EQ(open.last().text->string, words.text->string + QStringLiteral(" more"));
    EXPECT_EQ(open.last().id, words.id);
    EXPECT_EQ(open.document.history().undoText(), QStringLiteral("Change text"));

    open.key(Qt::Key_Return);
    open.key(Qt::Key_A, Qt::ControlModifier);
    open.key(Qt::Key_Delete);
    open.key(Qt::Key_Escape);
    EXPECT_TRUE(open.annotations().empty());
    open.document.history().setIndex(0);
    EXPECT_EQ(open.annotations(), std::vector{words});
    begin();
    open.type(QStringLiteral("  "));
    open.key(Qt::Key_Escape);
    EXPECT_EQ(open.annotations(), std::vector{words});
    EXPECT_TRUE(open.document.selectedIDs().isEmpty());
}

TEST_F(CanvasTextTest, hasAnUndoOfItsOwn) {
    begin();
    open.type(QStringLiteral("one"));
    open.key(Qt::Key_Left);
    open.type(QStringLiteral("X"));
    open.key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor().annotation().text->string, QStringLiteral("one"));
    open.key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(editor().annotation().text->string, QStringLiteral("onXe"));
    for (int time = 0; time < 9; ++time)
        open.key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor().annotation().text->string, QString());
    EXPECT_EQ(open.annotations(), std::vector{words});
}

// What is composed is measured too; what is done is text.
TEST_F(CanvasTextTest, growsWithWhatAnInputMethodComposes) {
    begin();
    open.type(QStringLiteral("日"));
    const QRectF before = editor().box();
    open.compose(QStringLiteral("にほんごのことば"));
    EXPECT_GT(editor().box().width(), 2 * before.width());
    EXPECT_EQ(editor().annotation().text->string, QStringLiteral("日"));
    open.compose({});
    EXPECT_EQ(editor().box(), before);
    open.compose({}, QStringLiteral("本語"));
    EXPECT_EQ(editor().annotation().text->string, QStringLiteral("日本語"));
    open.key(Qt::Key_Escape);
    EXPECT_EQ(open.last().text->string, QStringLiteral("日本語"));
}

// The box is that of what will be drawn, and the words wrap alike.
TEST_F(CanvasTextTest, isLaidOutAsItWillBeDrawn) {
    const QString texts[]{QStringLiteral("שלום עולם, שורה ארוכה מאוד שנשברת"),
                          QStringLiteral("日本語の文章は空白なしで折り返されます"),
                          QStringLiteral("mixed עברית and latin words that wrap"), QStringLiteral("a\n\nb"),
                          QStringLiteral("trailing spaces     ")};
    for (const QString &string : texts) {
        open.document.apply({text({50, 50}, string, 24, red, {}, 200)}, {}, QStringLiteral("Test"));
        open.document.setSelectedIDs({open.last().id});
        open.canvas.setTool(EditorTool::select);
        open.key(Qt::Key_Return);
        ASSERT_TRUE(open.canvas.isTyping());
        const AnnotationText drawn(*open.last().text);
        EXPECT_EQ(editor().box().size(), drawn.size());
        const auto *item = qgraphicsitem_cast<QGraphicsTextItem *>(editor().scene()->items().front());
        std::size_t lines = 0;
        for (QTextBlock block = item->document()->begin(); block.isValid(); block = block.next())
            lines += static_cast<std::size_t>(block.layout()->lineCount());
        EXPECT_EQ(lines, drawn.lines().size()) << string.toStdString();
        open.key(Qt::Key_Escape);
    }
}

TEST_F(CanvasTextTest, takesRichTextPlainAndCutsWhatIsEndless) {
    begin();
    auto *rich = new QMimeData;
    rich->setHtml(QStringLiteral("<b style='font-size:90px'>bold</b><img src='x'>"));
    rich->setText(QStringLiteral("bold"));
    QApplication::clipboard()->setMimeData(rich);
    open.key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(editor().annotation().text->string, QStringLiteral("bold"));
    const auto *item = qgraphicsitem_cast<QGraphicsTextItem *>(editor().scene()->items().front());
    EXPECT_EQ(item->document()->begin().begin().fragment().charFormat(), QTextCharFormat());

    QApplication::clipboard()->setText(QString(120'000, u'x'));
    open.key(Qt::Key_V, Qt::ControlModifier);
    open.key(Qt::Key_Escape);
    EXPECT_EQ(open.last().text->string.size(), 100'000);
    EXPECT_TRUE(open.last().hasValidPayload());
}

TEST_F(CanvasTextTest, changesOfStyleShowWhileItIsTyped) {
    begin();
    open.type(QStringLiteral("words"));
    const double width = editor().box().width();
    open.canvas.restyle({.size = 60});
    EXPECT_GT(editor().box().width(), width);
    open.key(Qt::Key_Escape);
    EXPECT_EQ(open.last().text->fontSize, 60);
    EXPECT_EQ(open.last().text->string, QStringLiteral("words"));
    EXPECT_EQ(open.document.history().count(), 1);
    begin({200, 350});
    EXPECT_EQ(editor().annotation().text->fontSize, 60);
}

} // namespace
} // namespace tembra
