// How long it takes until the editor's window shows a screenshot of 3840 × 2160, from the call to the pixels
// in the window, beside what a bare window takes; and until every pixel of the image is there, beside Qt's
// PNG reader. Run through bench/run, on a private desktop.

#include "InterfacePictures.h"
#include "Row.h"
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

constexpr QSize imageSize(3'840, 2'160);
constexpr int rounds = 9;

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
    const auto start = std::chrono::steady_clock::now();
    const auto sofar = [start] {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    };
    Opening opening;
    editor.open(shot, {0, 0, 1'400, 900});
    while (editor.status().path.isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    // The image is there; this paints it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    QCoreApplication::processEvents();
    opening.shown = sofar();
    while (!editor.status().hasFullImage)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    opening.full = sofar();
    static_cast<void>(editor.canTerminate());
    return opening;
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
    const QString path = folder.filePath(QStringLiteral("shot.png"));
    interfacePicture(imageSize, 1).save(path);
    const auto facts = platform.fileFacts->facts(path);
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
    std::printf("from the call to the screenshot in the window: %.0f ms, the first time %.0f ms  %s\n",
                median(shown), shown.front(), median(shown) <= 150 ? "pass" : "FALLS SHORT");
    printRow("the editor's window with its screenshot / a bare window", median(shown), median(bare), "ms", 10);
    printRow("every pixel of it / Qt's PNG reader", median(full), median(reading), "ms", 2.5);
}
