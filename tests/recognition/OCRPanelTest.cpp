#include "recognition/ui/OCRPanel.h"

#include "controls/TembraButton.h"
#include "controls/TembraDropdownPopup.h"
#include "recognition/ui/OCRDropView.h"
#include "recognition/ui/OCRLoadingView.h"
#include "recognition/ui/OCRPictureView.h"
#include "recognition/ui/OCRResultCard.h"
#include "recognition/ui/OCRResultTextView.h"
#include "support/ManualScheduler.h"
#include "support/RecognizedText.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <gtest/gtest.h>

#include <utility>

namespace tembra {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

const QStringList twoLines{u"One two"_s, u"three"_s};
const OCRState::Error noText{u"No text found. Try another image."_s};

OCRState result(const QStringList &lines) {
    return {OCRState::Text{recognizedText(lines)}, false, OCRTextLayout::lines};
}

QImage picture() {
    QImage image(160, 120, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    return image;
}

// What the panel does not take.
class Surroundings final : public QWidget {
public:
    QList<QKeySequence> keys;

protected:
    void keyPressEvent(QKeyEvent *event) override {
        if (event->key() != Qt::Key_Control)
            keys += QKeySequence(event->keyCombination());
    }
};

class OCRPanelTest : public testing::Test {
protected:
    void SetUp() override {
        window.resize(744, 212);
        panel->setGeometry(window.rect());
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    // The titles of everything that can be seen, buttons after labels.
    [[nodiscard]] QStringList shownTexts() const {
        QStringList texts;
        for (const QLabel *label : panel->findChildren<QLabel *>()) {
            if (label->isVisible())
                texts += label->text();
        }
        for (const QAbstractButton *button : panel->findChildren<QAbstractButton *>()) {
            if (button->isVisible())
                texts += button->text();
        }
        return texts;
    }
    [[nodiscard]] TembraButton *button(const QString &title) const {
        for (TembraButton *each : panel->findChildren<TembraButton *>()) {
            if (each->isVisible() && each->text() == title)
                return each;
        }
        return nullptr;
    }
    [[nodiscard]] OCRResultTextView &text() const { return *panel->findChild<OCRResultTextView *>(); }
    bool drag(const QMimeData &content) {
        QDragEnterEvent event(QPoint(100, 100), Qt::CopyAction, &content, Qt::LeftButton, {});
        QApplication::sendEvent(panel, &event);
        return event.isAccepted();
    }
    bool drop(const QMimeData &content) {
        QDropEvent event(QPointF(100, 100), Qt::CopyAction, &content, Qt::LeftButton, {});
        QApplication::sendEvent(panel, &event);
        return event.isAccepted();
    }
    // What invites a drop over the content.
    [[nodiscard]] bool showsOverlay() const {
        return panel->findChildren<OCRDropView *>().last()->isVisible();
    }

    ManualScheduler scheduler;
    Surroundings window;
    OCRPanel *panel = new OCRPanel(scheduler, &window);
};

TEST_F(OCRPanelTest, everyPhaseShowsWhatItIsAbout) {
    OCRState expanded = result(twoLines);
    expanded.isExpanded = true;
    expanded.layout = OCRTextLayout::paragraphs;
    const auto chooses = [](const QString &message) {
        return QStringList{message, u"or paste one with Ctrl+V"_s, u"Choose Image"_s};
    };
    const std::pair<OCRState, QStringList> cases[] = {
        {{}, chooses(u"Drop an image to extract its text"_s)},
        {{OCRState::Loading{}, false, {}}, {u"Analyzing…"_s, u"Cancel"_s}},
        {{noText, false, {}}, chooses(noText.message)},
        {result(twoLines), {u"3 words"_s, QString(), u"New Image"_s, u"Expand panel"_s, u"Copy"_s}},
        {expanded, {u"3 words"_s, QString(), u"New Image"_s, u"Reduce panel"_s, u"Copy"_s}},
        {result({u"One two"_s}), {u"2 words"_s, u"New Image"_s, u"Expand panel"_s, u"Copy"_s}},
        {{}, chooses(u"Drop an image to extract its text"_s)}};
    for (const auto &[state, texts] : cases) {
        panel->apply(state, {});
        EXPECT_EQ(shownTexts(), texts) << texts.join(u", ").toStdString();
        EXPECT_EQ(text().isVisible(), !state.result().isEmpty());
        EXPECT_TRUE(!text().isVisible() || text().toPlainText() == state.result());
    }
}

TEST_F(OCRPanelTest, aSingleWordIsCountedAsOne) {
    QTranslator wording;
    ASSERT_TRUE(wording.load(u":/tembra/tembra_linux_en.qm"_s));
    QCoreApplication::installTranslator(&wording);
    for (const auto &[lines, count] : {std::pair(QStringList{u"One"_s}, u"1 word"_s),
                                       std::pair(QStringList{u"One two"_s}, u"2 words"_s)}) {
        panel->apply(result(lines), {});
        EXPECT_EQ(shownTexts().first(), count);
    }
}

TEST_F(OCRPanelTest, saysWhatIsWantedOnce) {
    const QSignalSpy choice(panel, &OCRPanel::chooseImageRequested);
    const QSignalSpy reset(panel, &OCRPanel::resetRequested);
    const QSignalSpy size(panel, &OCRPanel::sizeToggled);
    const QSignalSpy copy(panel, &OCRPanel::copyRequested);
    const QSignalSpy layout(panel, &OCRPanel::layoutChosen);
    QTest::mouseClick(button(u"Choose Image"_s), Qt::LeftButton);
    panel->apply({OCRState::Loading{}, false, {}}, {});
    QTest::mouseClick(button(u"Cancel"_s), Qt::LeftButton);
    EXPECT_EQ(reset.count(), 1);
    panel->apply(result(twoLines), {});
    for (const QString &title : {u"New Image"_s, u"Expand panel"_s, u"Copy"_s})
        QTest::mouseClick(button(title), Qt::LeftButton);
    QTest::keyClick(panel->findChild<TembraDropdownPopup *>(), Qt::Key_End);
    EXPECT_EQ(choice.count(), 1);
    EXPECT_EQ(reset.count(), 2);
    EXPECT_EQ(size.count(), 1);
    EXPECT_EQ(copy.count(), 1);
    ASSERT_EQ(layout.count(), 1);
    EXPECT_EQ(layout.first().first().value<OCRTextLayout>(), OCRTextLayout::oneLine);
}

TEST_F(OCRPanelTest, saysForAMomentThatTheTextWasCopied) {
    panel->apply(result(twoLines), {});
    panel->showCopied();
    scheduler.advance(1s);
    panel->showCopied();
    scheduler.advance(1499ms);
    EXPECT_TRUE(button(u"Copied"_s));
    scheduler.advance(1ms);
    EXPECT_TRUE(button(u"Copy"_s));
    panel->showCopied();
    panel->apply(result({u"Another"_s}), {});
    EXPECT_TRUE(button(u"Copy"_s)) << "another text was not copied";
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST_F(OCRPanelTest, theSelectionStaysWhileTheTextDoes) {
    EXPECT_EQ(panel->selection(), QString());
    OCRState state = result(twoLines);
    panel->apply(state, {});
    text().selectAll();
    EXPECT_EQ(panel->selection(), u"One two\nthree"_s);
    state.isExpanded = true;
    panel->apply(state, picture());
    EXPECT_EQ(panel->selection(), u"One two\nthree"_s);
    window.hide();
    EXPECT_EQ(panel->selection(), QString()) << "it is not visible";
    window.show();
    panel->apply({OCRState::Loading{}, false, {}}, {});
    EXPECT_EQ(panel->selection(), QString());
    panel->apply(result({u"Another"_s}), {});
    EXPECT_EQ(panel->selection(), QString());
}

TEST_F(OCRPanelTest, theKeyboardGoesToWhatThePhaseIsFor) {
    panel->setFocus();
    EXPECT_TRUE(button(u"Choose Image"_s)->hasFocus());
    panel->apply({OCRState::Loading{}, false, {}}, {});
    EXPECT_TRUE(button(u"Cancel"_s)->hasFocus());
    panel->apply(result(twoLines), {});
    EXPECT_TRUE(text().hasFocus());
    panel->apply({noText, false, {}}, {});
    EXPECT_TRUE(button(u"Choose Image"_s)->hasFocus());
    window.setFocus();
    panel->apply(result(twoLines), {});
    EXPECT_TRUE(window.hasFocus()) << "it was elsewhere";
}

TEST_F(OCRPanelTest, tabGoesThroughTheHeadToTheText) {
    panel->apply(result({u"One https://example.com"_s, u"two me@example.com"_s}), {});
    panel->findChild<TembraDropdownPopup *>()->setFocus(Qt::TabFocusReason);
    QWidget *const order[] = {button(u"New Image"_s), button(u"Expand panel"_s), button(u"Copy"_s), &text()};
    for (const QWidget *next : order) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next);
    }
    const QSignalSpy links(panel, &OCRPanel::linkActivated);
    for (const QUrl &url : {QUrl(u"https://example.com"_s), QUrl(u"mailto:me@example.com"_s)}) {
        QTest::keyClick(&text(), Qt::Key_Tab);
        QTest::keyClick(&text(), Qt::Key_Return);
        ASSERT_FALSE(links.isEmpty());
        EXPECT_EQ(links.last().first().toUrl(), url);
    }
    EXPECT_EQ(links.count(), 2);
}

TEST_F(OCRPanelTest, leavesCopyingPastingAndEscapeToWhatItStandsIn) {
    panel->apply(result(twoLines), {});
    text().setFocus();
    text().selectAll();
    const QKeyCombination keys[] = {Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_V, Qt::Key_Escape};
    for (const QKeyCombination key : keys) {
        QTest::keyClick(&text(), key.key(), key.keyboardModifiers());
        EXPECT_EQ(std::exchange(window.keys, {}), QList{QKeySequence(key)});
    }
    QTest::keyClick(&text(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(window.keys.isEmpty());
}

TEST_F(OCRPanelTest, takesImagesInEveryPhaseAndNothingElse) {
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(u"/pictures/one.png"_s)});
    QMimeData pixels;
    pixels.setImageData(picture());
    QMimeData words;
    words.setText(u"words"_s);
    const QSignalSpy inputs(panel, &OCRPanel::inputReceived);
    const OCRState states[] = {{}, {OCRState::Loading{}, false, {}}, result(twoLines), {noText, false, {}}};
    for (const OCRState &state : states) {
        panel->apply(state, {});
        const bool hasContent = state.phase.index() == 1 || state.phase.index() == 2;
        EXPECT_FALSE(drag(words));
        EXPECT_FALSE(showsOverlay());
        for (const QMimeData *content : {&file, &pixels}) {
            EXPECT_TRUE(drag(*content));
            EXPECT_EQ(showsOverlay(), hasContent);
            QDragLeaveEvent leave;
            QApplication::sendEvent(panel, &leave);
            EXPECT_FALSE(showsOverlay());
        }
        EXPECT_TRUE(drag(file));
        EXPECT_TRUE(drop(file));
        EXPECT_FALSE(showsOverlay());
    }
    ASSERT_EQ(inputs.count(), 4);
    EXPECT_EQ(inputs.first().first().value<OCRInput>(), (OCRInput{OCRInput::File{u"/pictures/one.png"_s}}));
    EXPECT_TRUE(drag(pixels) && drop(pixels));
    EXPECT_TRUE(std::holds_alternative<OCRInput::Data>(inputs.last().first().value<OCRInput>().source));
    for (const QWidget *child : panel->findChildren<QWidget *>())
        EXPECT_FALSE(child->acceptDrops()) << child->metaObject()->className();
}

TEST_F(OCRPanelTest, thePictureStandsBesideTheTextWhereThereIsRoom) {
    const auto *view = panel->findChild<OCRPictureView *>();
    panel->apply(result(twoLines), {});
    EXPECT_FALSE(view->isVisible());
    panel->apply(result(twoLines), picture());
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(view->size(), QSize(120, 90));
    EXPECT_LE(text().geometry().right(), view->geometry().left());
    panel->resize(400, 212);
    EXPECT_FALSE(view->isVisible());
}

TEST_F(OCRPanelTest, tellsAssistivePrograms) {
    const auto accessible = [](QWidget *widget) { return QAccessible::queryAccessibleInterface(widget); };
    panel->apply({noText, false, {}}, {});
    auto *drop = panel->findChild<OCRDropView *>();
    EXPECT_EQ(accessible(drop)->text(QAccessible::Name), noText.message);
    EXPECT_EQ(accessible(drop)->role(), QAccessible::Grouping);
    EXPECT_EQ(accessible(panel->findChild<OCRLoadingView *>())->text(QAccessible::Name), u"Analyzing…"_s);
    panel->apply(result(twoLines), picture());
    EXPECT_EQ(accessible(panel->findChild<OCRPictureView *>())->role(), QAccessible::Graphic);
    EXPECT_EQ(accessible(panel->findChild<OCRResultCard *>())->text(QAccessible::Name), u"3 words"_s);
    QAccessibleTextInterface *shown = accessible(&text())->textInterface();
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->text(0, shown->characterCount()), u"One two\nthree"_s);
}

} // namespace
} // namespace tembra
