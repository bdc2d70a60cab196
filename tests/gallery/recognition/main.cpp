#include "RecognitionGallery.h"
#include "base/QtScheduler.h"
#include "controls/Theme.h"
#include "recognition/ui/OCRPanel.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <QVBoxLayout>

// tembra-recognition-gallery [--mirrored] [STATE…]: shows the panel for text recognition in the states of
// these names, in all of them without any. What the user asks for is written to the standard output.
namespace tembra {
namespace {

void report(const QString &line) {
    QTextStream(stdout) << line << Qt::endl;
}

void connectPanel(OCRPanel *panel, const RecognitionGalleryState &shown) {
    QObject::connect(panel, &OCRPanel::linkActivated, panel,
                     [](const QUrl &url) { report(QStringLiteral("link %1").arg(url.toString())); });
    QObject::connect(panel, &OCRPanel::copyRequested, panel, [panel] { panel->showCopied(); });
    QObject::connect(panel, &OCRPanel::selectionCopyRequested, panel,
                     [panel] { report(QStringLiteral("selection %1").arg(panel->selection())); });
    QObject::connect(panel, &OCRPanel::inputReceived, panel, [] { report(QStringLiteral("input")); });
    QObject::connect(panel, &OCRPanel::resetRequested, panel, [panel] { panel->apply({}, {}); });
    QObject::connect(panel, &OCRPanel::chooseImageRequested, panel,
                     [panel, shown] { panel->apply(shown.state, shown.picture); });
    QObject::connect(panel, &OCRPanel::layoutChosen, panel, [panel, shown](OCRTextLayout layout) {
        OCRState state = shown.state;
        state.layout = layout;
        panel->apply(state, shown.picture);
    });
}

} // namespace
} // namespace tembra

int main(int argc, char **argv) {
    using namespace tembra;
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption mirrored(QStringLiteral("mirrored"), QStringLiteral("From right to left."));
    parser.addOption(mirrored);
    parser.addHelpOption();
    parser.process(application);
    if (parser.isSet(mirrored))
        QApplication::setLayoutDirection(Qt::RightToLeft);

    QtScheduler scheduler;
    QWidget window;
    window.setWindowTitle(QStringLiteral("Tembra's text recognition"));
    Theme::setAppearance(window, Appearance::shelf);
    auto *column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    const QStringList names = parser.positionalArguments();
    for (const RecognitionGalleryState &shown : recognitionGalleryStates()) {
        if (!names.isEmpty() && !names.contains(shown.name))
            continue;
        auto *panel = new OCRPanel(scheduler, &window);
        panel->setFixedSize(shown.size);
        panel->apply(shown.state, shown.picture);
        panel->highlightOCRDrop(shown.isHighlighted);
        connectPanel(panel, shown);
        column->addWidget(panel);
    }
    window.show();
    return QApplication::exec();
}
