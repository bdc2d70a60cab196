#include "recognition/ui/OCRResultTextView.h"

#include <QApplication>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace tembra {
namespace {

using namespace Qt::StringLiterals;

const QString report = u"Quarterly report\nSee https://example.com/a for more.\nDone"_s;
const QString link = u"https://example.com/a"_s;

class OCRResultTextViewTest : public testing::Test {
protected:
    void SetUp() override {
        view.resize(420, 160);
        view.show();
        view.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    void select(int start, int end) {
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
    }
    // In the middle of the letter.
    [[nodiscard]] QPoint placeOf(qsizetype letter) {
        QTextCursor cursor(view.document());
        cursor.setPosition(static_cast<int>(letter));
        const QPoint left = view.cursorRect(cursor).center();
        cursor.setPosition(static_cast<int>(letter) + 1);
        return (left + view.cursorRect(cursor).center()) / 2;
    }
    void click(qsizetype letter, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, placeOf(letter));
    }
    void drag(qsizetype from, qsizetype to) {
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, placeOf(from));
        QTest::mouseMove(view.viewport(), placeOf(to));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, placeOf(to));
    }
    [[nodiscard]] QStringList enabledItems(QPoint place) {
        QStringList titles;
        const auto menu = view.contextMenu(place);
        for (const QAction *action : menu->actions()) {
            if (!action->isSeparator() && action->isEnabled())
                titles += action->text();
        }
        return titles;
    }

    OCRResultTextView view{nullptr};
};

TEST_F(OCRResultTextViewTest, theSelectionIsThatPartOfTheText) {
    const QString texts[] = {
        report,
        u"12\u00A0% of\u00A0it\nnext"_s,
        u"a long line that is wrapped, "_s.repeated(20) + u"\nend"_s,
        u"😀 astral 𝒳 letters\n👩‍👩‍👧 joined"_s,
        u"שלום עולם\nabc שלום def\nالعربية"_s,
        u"odd\r\nends\u2028of\u2029lines\uFFFC\uFDD0"_s,
        u"\n\nempty\n\nlines\n"_s,
    };
    for (const QString &text : texts) {
        view.setResult(text, {});
        EXPECT_EQ(view.document()->blockCount(), text.count(u'\n') + 1);
        EXPECT_EQ(view.selection(), QString());
        view.selectAll();
        EXPECT_EQ(view.selection(), text);
        for (const auto &[start, end] : {std::pair(0, 3), std::pair(2, 9), std::pair(9, 5)}) {
            select(start, end);
            EXPECT_EQ(view.selection(), text.mid(std::min(start, end), std::abs(end - start)));
        }
    }
}

TEST_F(OCRResultTextViewTest, isSelectedByPointerAndKeys) {
    view.setResult(report, {});
    drag(3, 9);
    EXPECT_EQ(view.selection().size(), 6);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, placeOf(12));
    EXPECT_EQ(view.selection(), u"report"_s);
    click(12);
    EXPECT_EQ(view.selection(), u"Quarterly report\n"_s) << "a third click takes the line";
    view.moveCursor(QTextCursor::Start);
    click(9, Qt::ShiftModifier);
    EXPECT_TRUE(report.startsWith(view.selection()) && view.selection().size() >= 9);
    view.moveCursor(QTextCursor::Start);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(view.selection(), u"Quarterly "_s);
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.selection(), report);
    QTest::keyClicks(&view, u"typed"_s);
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(view.toPlainText(), report);
}

TEST_F(OCRResultTextViewTest, sectionsStandApartWithoutAnotherLetter) {
    view.setResult(report, {});
    const int plain = view.cursorRect(QTextCursor(view.document()->lastBlock())).top();
    view.setResult(report, {2});
    EXPECT_EQ(view.cursorRect(QTextCursor(view.document()->lastBlock())).top(), plain + 22);
    EXPECT_EQ(view.toPlainText(), report);
    const QTextBlock second = view.document()->findBlockByNumber(1);
    EXPECT_EQ(view.cursorRect(QTextCursor(second)).top(),
              view.cursorRect(QTextCursor(view.document())).top() + 22);
}

TEST_F(OCRResultTextViewTest, linesAlignByTheirOwnDirection) {
    view.setResult(u"left\nשלום\nleft"_s, {});
    const auto startOf = [this](int line) {
        return view.cursorRect(QTextCursor(view.document()->findBlockByNumber(line))).left();
    };
    EXPECT_LT(startOf(0), 20);
    EXPECT_GT(startOf(1), view.width() - 40);
    EXPECT_LT(startOf(2), 20);
}

TEST_F(OCRResultTextViewTest, aLinkIsFollowedByAClickButNotByASelection) {
    view.setResult(report, {});
    const qsizetype start = report.indexOf(link);
    const QSignalSpy followed(&view, &OCRResultTextView::linkActivated);
    drag(start + 3, start + 12);
    EXPECT_FALSE(view.selection().isEmpty());
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, placeOf(start + 3));
    click(2);
    click(start - 2);
    EXPECT_EQ(followed.count(), 0);
    click(start + 3);
    ASSERT_EQ(followed.count(), 1);
    EXPECT_EQ(followed.first().first().toUrl(), QUrl(link));
    EXPECT_EQ(view.selection(), QString());
}

TEST_F(OCRResultTextViewTest, showsWhatIsALink) {
    view.setResult(report, {});
    const qsizetype start = report.indexOf(link);
    const auto isUnderlined = [this] { return !view.extraSelections().isEmpty(); };
    QTest::mouseMove(view.viewport(), placeOf(start + 3));
    EXPECT_EQ(view.viewport()->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_TRUE(isUnderlined());
    QTest::mouseMove(view.viewport(), placeOf(2));
    EXPECT_EQ(view.viewport()->cursor().shape(), Qt::IBeamCursor);
    EXPECT_FALSE(isUnderlined());
    view.setResult(u"no link"_s, {});
    EXPECT_FALSE(view.document()->firstBlock().charFormat().isAnchor());
}

TEST_F(OCRResultTextViewTest, theMenuHasWhatCanBeDone) {
    view.setResult(report, {});
    const qsizetype start = report.indexOf(link);
    EXPECT_EQ(enabledItems(placeOf(2)), QStringList{u"Select All"_s});
    EXPECT_EQ(enabledItems(placeOf(start + 3)),
              (QStringList{u"Select All"_s, u"Open Link"_s, u"Copy Link"_s}));
    view.selectAll();
    EXPECT_EQ(enabledItems(placeOf(2)), (QStringList{u"Copy"_s, u"Select All"_s}));
    const QSignalSpy copied(&view, &OCRResultTextView::selectionCopyRequested);
    const QSignalSpy opened(&view, &OCRResultTextView::linkActivated);
    const QSignalSpy linkCopied(&view, &OCRResultTextView::linkCopyRequested);
    const auto menu = view.contextMenu(placeOf(start + 3));
    for (QAction *action : menu->actions())
        action->trigger();
    EXPECT_EQ(copied.count(), 1);
    ASSERT_EQ(opened.count(), 1);
    ASSERT_EQ(linkCopied.count(), 1);
    EXPECT_EQ(linkCopied.first().first().toUrl(), QUrl(link));
}

TEST_F(OCRResultTextViewTest, theWheelScrollsAndNeverZooms) {
    view.setResult(u"line\n"_s.repeated(200), {});
    const auto turn = [this](Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(QPointF(50, 50), view.viewport()->mapToGlobal(QPointF(50, 50)), {}, {0, -120}, {},
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
    };
    turn({});
    EXPECT_GT(view.verticalScrollBar()->value(), 0);
    const int size = view.font().pixelSize();
    turn(Qt::ControlModifier);
    EXPECT_EQ(view.font().pixelSize(), size);
    view.setResult(u"line\n"_s.repeated(300), {});
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

} // namespace
} // namespace tembra
