// How long it takes until the editor's window shows a screenshot of 3840 × 2160, from the call to the pixels
// in the window, beside what a bare window takes; and until every pixel of the image is there, beside Qt's
// PNG reader; and how that grows with the screenshot. Needs a display; run through bench/run.

#include "InterfacePictures.h"
#include "PictureSizes.h"
#include "Require.h"
#include "Row.h"
#include "Timing.h"
#include "base/QtScheduler.h"
#include "base/ThreadQueue.h"
#include "editor/window/ScreenshotEditorWindowController.h"
#include "platform/Platform.h"
#include "support/MemoryUserDefaults.h"

#include <QApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using namespace tembra;
using namespace tembra::bench;

namespace {

constexpr QSize usualSize(3'840, 2'160);

class BareWindow final : public QWidget {
public:
    bool isPainted = false;

protected:
    void paintEvent(QPaintEvent *event) override {
        QPainter(this).fillRect(event->rect(), Qt::darkGray);
        isPainted = true;
    }
};

double bareWindow() {
    return milliseconds([] {
        BareWindow window;
        window.resize(1'200, 740);
        window.show();
        while (!window.isPainted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    });
}

struct Opening {
    double shown = 0;
    double full = 0;
};

Opening openEditor(const ScreenshotEditorServices &services, const Shot &shot) {
    ScreenshotEditorWindowController editor(
        services,
        {.documents = {.beginSave = [](const Shot &) {}, .finishWrite = [](const auto &) {}, .trash = {}},
         .shots = [&] { return std::vector{shot}; },
         .isEdited = [](const Shot &) { return false; },
         .openChanged = [](bool) {},
         .addMenus = [](QWidget &) {},
         .mayTerminate = [] {}});
    const auto start = Clock::now();
    Opening opening;
    editor.open(shot, {0, 0, 1'400, 900});
    while (editor.status().path.isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    // The image is there; this paints it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    QCoreApplication::processEvents();
    opening.shown = millisecondsSince(start);
    while (!editor.status().hasFullImage)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    opening.full = millisecondsSince(start);
    static_cast<void>(editor.canTerminate());
    return opening;
}

struct Figures {
    double bare = 0;
    double first = 0;
    double shown = 0;
    double full = 0;
    double reading = 0;
};

Figures measure(const ScreenshotEditorServices &services, const QString &path, int rounds) {
    const auto facts = services.documents.files.facts(path);
    require(facts.has_value(), "no picture to open");
    Shot shot;
    shot.location = path;
    shot.identity = ScreenshotFileIdentity::of(path, *facts);
    std::vector<double> shown;
    std::vector<double> full;
    std::vector<double> bare;
    std::vector<double> reading;
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(bareWindow());
        const Opening opening = openEditor(services, shot);
        shown.push_back(opening.shown);
        full.push_back(opening.full);
        reading.push_back(milliseconds([&] { static_cast<void>(QImage(path)); }));
        QTest::qWait(100);
    }
    return {median(bare), shown.front(), median(shown), median(full), median(reading)};
}

void printUsual(const Figures &figures) {
    printArea("The editor's window, 3840 × 2160");
    printRow({.what = "from the call to the screenshot in the window",
              .ours = figures.shown,
              .unit = "ms",
              .peer = Peer{"a bare window", figures.bare},
              .goal = atMost(150)});
    printRow({.what = "the same, the first window",
              .ours = figures.first,
              .unit = "ms",
              .peer = Peer{"a bare window", figures.bare},
              .goal = atMost(150)});
    printRow({.what = "until every pixel is there",
              .ours = figures.full,
              .unit = "ms",
              .peer = Peer{"Qt's PNG reader", figures.reading}});
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    QtScheduler scheduler;
    Platform platform = makePlatform(scheduler);
    ThreadQueue io(QStringLiteral("Tembra.Editor.IO"));
    ThreadQueue images(QStringLiteral("Tembra.Editor.Images"));
    ThreadQueue words(QStringLiteral("Tembra.Editor.WordRecognition"));
    const QTemporaryDir folder;
    MemoryUserDefaults defaults;
    ScreenshotEditStore store(folder.filePath(QStringLiteral("edits")),
                              {*platform.fileFacts, *platform.bookmarks, *platform.fileReferences,
                               *platform.fileCoordinator, *platform.thumbnailCache, io, scheduler});
    EditorImageCopies copies(folder.filePath(QStringLiteral("copies")),
                             {*platform.pasteboard, *platform.fileCoordinator, io, scheduler});
    const ScreenshotEditorServices services{
        .documents = {store, copies, *platform.fileCoordinator, *platform.fileFacts, io, images, scheduler},
        .defaults = defaults,
        .pasteboard = *platform.pasteboard,
        .thumbnails = *platform.thumbnails,
        .workspace = *platform.workspace,
        .recognizer = *platform.textRecognizer,
        .wordQueue = words};
    const auto picture = [&folder](QSize size) {
        QString path = folder.filePath(QStringLiteral("%1.png").arg(size.width()));
        require(interfacePicture(size, 1).save(path), "cannot write");
        return path;
    };
    printUsual(measure(services, picture(usualSize), 9));
    for (const PictureSize &size : pictureSizes)
        printGrowth("megapixels", size.megapixels, "opening in the editor", "ms",
                    measure(services, picture(size.pixels), 3).shown);
    return EXIT_SUCCESS;
}
