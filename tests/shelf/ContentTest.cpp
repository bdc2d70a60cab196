#include "GridShots.h"
#include "controls/LoadingIndicator.h"
#include "controls/Palette.h"
#include "controls/TembraButton.h"
#include "shelf/CaptureNotificationView.h"
#include "shelf/NativeScreenshotGrid.h"
#include "shelf/PopupWatch.h"
#include "shelf/ScreenshotFolderMessage.h"
#include "shelf/ScreenshotMessageView.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfHeader.h"
#include "support/FakeDesktop.h"
#include "support/FakeFileFacts.h"
#include "support/FakeHotKeys.h"
#include "support/FakeInputMonitor.h"
#include "support/FakeOCRRecognizer.h"
#include "support/FakePasteboard.h"
#include "support/FakeThumbnails.h"
#include "support/FakeWorkspace.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"
#include "support/TrayServices.h"
#include "tray/ClipboardStore.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace tembra;

namespace {

QString accessibleName(QWidget &widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

int pixelsOf(const QImage &image, const QColor &color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

} // namespace

class ContentTest : public testing::Test {
protected:
    ContentTest() {
        content.resize(744, 256);
        content.show();
        state.tabs = {ShelfTab::screenshots};
    }

    // What a screen reader finds of one kind.
    template <class Widget>
    [[nodiscard]] QStringList shown() const {
        QStringList names;
        for (Widget *widget : content.findChildren<Widget *>()) {
            if (widget->isVisible())
                names += accessibleName(*widget);
        }
        return names;
    }
    [[nodiscard]] bool showsGrid() const { return content.findChild<NativeScreenshotGrid *>()->isVisible(); }

    void applyMessage(ScreenshotFolderState folder) {
        state.message = screenshotFolderMessage(folder);
        content.apply(state);
    }

    ManualScheduler scheduler;
    FakeDisplays displays;
    FakeWorkspace workspace;
    FakeInputMonitor input;
    FakePanelWindows panels;
    FakeHotZones zones;
    FakeHotKeys hotKeys;
    FakeThumbnails thumbnails;
    FakeFileFacts files;
    NoPictures pictures;
    FakeOCRRecognizer recognizer;
    FakePasteboard pasteboard;
    TrayServices tray{scheduler, files, workspace};
    ClipboardStore store{tray.services()};
    ManualQueue queue;
    ShelfContent content{{scheduler, scheduler.uptimeClock(), scheduler.wallClock({}), displays, workspace,
                          input, panels, zones, hotKeys, pasteboard, thumbnails, files, pictures, recognizer,
                          queue},
                         store};
    ShelfContent::State state;
};

TEST_F(ContentTest, showsTheMessageOfTheFolderOrTheGrid) {
    struct Row {
        ScreenshotFolderState folder;
        QStringList texts;
        QStringList buttons;
        bool loads;
    };
    const QString where = u"Where should screenshots go?"_s;
    const QStringList choose{u"Choose Folder"_s};
    const std::vector<Row> table{
        {ScreenshotFolderState::none, {where}, choose, false},
        {ScreenshotFolderState::loading, {u"Loading screenshots…"_s}, {}, true},
        {ScreenshotFolderState::ready, {}, {}, false},
        {ScreenshotFolderState::clipboard,
         {where, u"Screenshots go to the clipboard. Choose a folder to save them."_s},
         choose,
         false},
    };
    for (const Row &row : table) {
        applyMessage(row.folder);
        EXPECT_EQ(shown<QLabel>(), row.texts);
        EXPECT_EQ(shown<TembraButton>(), row.buttons);
        EXPECT_EQ(shown<LoadingIndicator>(), row.loads ? QStringList{u"Loading"_s} : QStringList());
        EXPECT_EQ(showsGrid(), row.texts.isEmpty());
        EXPECT_TRUE(content.findChild<ShelfHeader *>()->isVisible());
    }
}

TEST_F(ContentTest, whatIsDraggedToTheTextRecognitionStaysOnItsWay) {
    int asked = 0;
    QObject::connect(&content, &ShelfContent::filesDraggedOver, [&asked] { ++asked; });
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(u"/a.png"_s)});
    state.tabs = {ShelfTab::fileTray, ShelfTab::screenshots, ShelfTab::imageToText};
    const auto dragBelowTheTabs = [&](ShelfTab tab) {
        state.activeTab = tab;
        content.apply(state);
        QDragEnterEvent event(QPoint(100, 42), Qt::CopyAction, &file, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&content, &event);
    };
    dragBelowTheTabs(ShelfTab::imageToText);
    EXPECT_EQ(asked, 0);
    dragBelowTheTabs(ShelfTab::screenshots);
    EXPECT_EQ(asked, 1);
}

TEST(PopupWatch, tellsWhenAMenuCloses) {
    PopupWatch watch;
    int closed = 0;
    watch.onClosed = [&closed] { ++closed; };
    QMenu menu;
    menu.addAction(u"Item"_s);
    menu.popup({10, 10});
    EXPECT_TRUE(PopupWatch::isPopupOpen());
    EXPECT_EQ(closed, 0);
    menu.hide();
    EXPECT_FALSE(PopupWatch::isPopupOpen());
    EXPECT_EQ(closed, 1);
    QWidget window;
    window.show();
    window.hide();
    EXPECT_EQ(closed, 1);
}

TEST_F(ContentTest, theButtonOfAMessageAnswersIt) {
    int answers = 0;
    QObject::connect(&content, &ShelfContent::messageActed, [&] { ++answers; });
    applyMessage(ScreenshotFolderState::missing);
    content.findChild<ScreenshotMessageView *>()->findChild<TembraButton *>()->click();
    EXPECT_EQ(answers, 1);
}

TEST_F(ContentTest, aNotificationTakesThePlaceOfEverythingAndGivesItBack) {
    state.screenshots = gridState({2, 1});
    content.apply(state);
    EXPECT_TRUE(showsGrid());
    content.findChild<NativeScreenshotGrid *>()->selectAll();
    state.selection = content.selection();

    state.notification =
        CaptureNotification{.text = u"Screenshot saved"_s, .previews = {u"/a"_s, u"/b"_s}, .captureCount = 2};
    content.apply(state);
    EXPECT_EQ(shown<CaptureNotificationView>(), QStringList{u"Screenshot saved"_s});
    EXPECT_FALSE(showsGrid());
    EXPECT_FALSE(content.findChild<ShelfHeader *>()->isVisible());

    state.notification.reset();
    content.apply(state);
    EXPECT_TRUE(showsGrid());
    EXPECT_EQ(shown<CaptureNotificationView>(), QStringList());
    EXPECT_EQ(content.selectedPaths().size(), 3);
    EXPECT_EQ(content.selection().size(), 3);
}

class NotificationViewTest : public testing::Test {
protected:
    NotificationViewTest() { view.resize(360, 84); }

    void show(const QStringList &previews, int count) {
        view.apply({.text = u"Screenshot saved"_s, .previews = previews, .captureCount = count});
    }
    [[nodiscard]] QImage look() { return view.grab().toImage(); }

    FakeThumbnails thumbnails;
    FakeFileFacts files;
    CaptureNotificationView view{thumbnails, files, nullptr};
};

TEST_F(NotificationViewTest, countsWhatIsNotSeen) {
    const QStringList three{u"/a"_s, u"/b"_s, u"/c"_s};
    show(three, 3);
    EXPECT_EQ(pixelsOf(look(), palette::accent), 0);
    EXPECT_EQ(view.accessibleDescription(), u"3 screenshots"_s);
    show(three, 5);
    const int small = pixelsOf(look(), palette::accent);
    EXPECT_GT(small, 50);
    EXPECT_EQ(view.accessibleDescription(), u"5 screenshots"_s);
    show(three, 5000);
    EXPECT_GT(pixelsOf(look(), palette::accent), small) << "the count has room";
}

TEST_F(NotificationViewTest, asksForEachPictureOnceAndForgetsThoseThatLeft) {
    show({u"/b"_s, u"/a"_s}, 2);
    EXPECT_EQ(thumbnails.waiting(), (QStringList{u"/b"_s, u"/a"_s}));
    const QImage plain = look();
    ASSERT_TRUE(thumbnails.answer(u"/b"_s));
    EXPECT_NE(look(), plain);
    EXPECT_GT(pixelsOf(look(), Qt::red), 500);

    show({u"/d"_s, u"/c"_s, u"/b"_s}, 4);
    EXPECT_EQ(thumbnails.waiting(), (QStringList{u"/d"_s, u"/c"_s}))
        << "the picture of /b is here, /a is out of sight";
    EXPECT_GT(pixelsOf(look(), Qt::red), 100);
    ASSERT_TRUE(thumbnails.fail(u"/d"_s));
    ASSERT_TRUE(thumbnails.answer(u"/c"_s, Qt::green));
    EXPECT_GT(pixelsOf(look(), Qt::green), 100);
}
