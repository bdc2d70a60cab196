#include "shelf/ClipboardShelf.h"
#include "shelf/FileItemCell.h"
#include "shelf/FileThumbnailCache.h"
#include "support/FakeDesktop.h"
#include "support/FakeFileFacts.h"
#include "support/FakeHotKeys.h"
#include "support/FakeInputMonitor.h"
#include "support/FakeOCRRecognizer.h"
#include "support/FakePasteboard.h"
#include "support/FakeThumbnails.h"
#include "support/FakeWorkspace.h"
#include "support/TrayServices.h"
#include "tray/ClipboardStore.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QUrl>

#include <gtest/gtest.h>

using namespace tembra;
using namespace Qt::StringLiterals;

namespace {

// The tray's view over a store whose files are as the test says.
class TrayViewTest : public testing::Test {
protected:
    TrayViewTest() {
        store.onChange = [this] { view.refresh(); };
        view.resize(744, 212);
        view.show();
        QObject::connect(&view, &ClipboardShelf::failed, [this](const QString &title) { failures += title; });
    }

    // Adds files, the last of which is then away with its disk.
    void add(const QStringList &names, bool lastIsAway = false) {
        for (const QString &name : names)
            files.set(name, {.kind = FileKind::regular});
        store.add(store.importGeneration(), names);
        if (!lastIsAway)
            return;
        store.inspectEntry = [away = names.last()](const ClipboardEntry &entry) {
            return entry.lastKnownPath == away ? ClipboardFileState::unavailable
                                               : ClipboardFileState::available;
        };
        store.reconcileFiles();
    }
    [[nodiscard]] QString hint() const { return view.findChild<QLabel *>()->text(); }
    [[nodiscard]] QStringList enabledItems() {
        QStringList titles;
        const auto menu = view.contextMenu();
        for (const QAction *action : menu->actions()) {
            if (!action->isSeparator() && action->isEnabled())
                titles += action->text();
        }
        return titles;
    }
    bool drag(const QMimeData &content) {
        QDragEnterEvent event(QPoint(100, 100), Qt::CopyAction, &content, Qt::LeftButton, {});
        QApplication::sendEvent(&view, &event);
        return event.isAccepted();
    }
    void drop(const QMimeData &content) {
        QDropEvent event(QPointF(100, 100), Qt::CopyAction, &content, Qt::LeftButton, {});
        QApplication::sendEvent(&view, &event);
    }

    ManualScheduler scheduler;
    FakeFileFacts files;
    FakeWorkspace workspace;
    FakePasteboard pasteboard;
    FakeThumbnails thumbnails;
    FakeDisplays displays;
    FakeInputMonitor input;
    FakePanelWindows panels;
    FakeHotZones zones;
    FakeHotKeys hotKeys;
    NoPictures pictures;
    FakeOCRRecognizer recognizer;
    ManualQueue queue;
    FileThumbnailCache cache;
    TrayServices parts{scheduler, files, workspace};
    ClipboardStore store{parts.services()};
    ClipboardShelf view{store,
                        {scheduler, scheduler.uptimeClock(), scheduler.wallClock({}), displays, workspace,
                         input, panels, zones, hotKeys, pasteboard, thumbnails, files, pictures, recognizer,
                         queue},
                        {thumbnails, files, cache},
                        nullptr};
    QStringList failures;
};

} // namespace

TEST_F(TrayViewTest, takesFilesThatAreDroppedAndSaysWhatItDoesNotTake) {
    files.set(u"/a"_s, {.kind = FileKind::regular});
    QMimeData text;
    text.setText(u"no file"_s);
    EXPECT_FALSE(drag(text));
    EXPECT_EQ(hint(), u"Only files and images can be kept here"_s);

    QMimeData urls;
    urls.setUrls({QUrl(u"file:///a"_s)});
    EXPECT_TRUE(drag(urls));
    EXPECT_EQ(hint(), u"Drag or ⌘C to copy"_s);
    drop(urls);
    ASSERT_EQ(store.entries().size(), 1U);
    EXPECT_EQ(view.findChildren<FileItemCell *>().size(), 1);
}

TEST_F(TrayViewTest, theMenuOffersWhatCanBeDone) {
    EXPECT_EQ(enabledItems(), QStringList());
    add({u"/a"_s, u"/b"_s}, true);
    EXPECT_EQ(enabledItems(), (QStringList{u"Clear File Tray"_s}));
    store.select({store.entries()[1].id});
    EXPECT_EQ(enabledItems(), (QStringList{u"Remove from File Tray"_s, u"Clear File Tray"_s}))
        << "an original that is away can only be taken out";
    view.selectAll();
    EXPECT_EQ(enabledItems(), (QStringList{u"Copy"_s, u"Show in Finder"_s, u"Remove from File Tray"_s,
                                           u"Clear File Tray"_s}));
    view.removeSelected();
    EXPECT_TRUE(store.entries().empty());
}

TEST_F(TrayViewTest, copiesWhatCanBeReachedAndSaysWhatCannot) {
    add({u"/a"_s, u"/b"_s, u"/c"_s}, true);
    view.selectAll();
    view.copySelected();
    ASSERT_EQ(pasteboard.items.size(), 2U);
    EXPECT_EQ(pasteboard.items[0].path, u"/a"_s);
    EXPECT_EQ(pasteboard.items[1].path, u"/b"_s);
    EXPECT_EQ(hint(), u"Some originals are currently unavailable"_s);
    QStringList tips;
    for (const FileItemCell *cell : view.findChildren<FileItemCell *>())
        tips += cell->toolTip();
    EXPECT_EQ(tips, (QStringList{u"a\n/"_s, u"b\n/"_s, u"Original unavailable"_s}));

    pasteboard.refuses = true;
    store.select({store.entries()[0].id});
    view.copySelected();
    EXPECT_NE(hint(), u"Drag or ⌘C to copy"_s) << "a clipboard that refuses is told of";
}

TEST_F(TrayViewTest, aFailureToShowOrOpenAFileIsTold) {
    add({u"/a"_s});
    view.selectAll();
    workspace.openRefusal = failure({.message = u"No"_s});
    view.revealSelected();
    view.openSelected();
    EXPECT_EQ(failures, (QStringList{u"Couldn’t Show in Finder"_s, u"Couldn’t Open Files"_s}));
}
