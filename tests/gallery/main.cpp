#include "Gallery.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QHBoxLayout>
#include <QTextStream>

// tembra-gallery [--picture FILE]: shows every control in every state, light and dark; with a file, draws
// that into it instead.
int main(int argc, char **argv) {
    using namespace tembra;
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption picture(QStringLiteral("picture"),
                                     QStringLiteral("Draws into the file and ends."), QStringLiteral("FILE"));
    parser.addOption(picture);
    parser.addHelpOption();
    parser.process(application);

    QWidget window;
    window.setWindowTitle(QStringLiteral("Tembra's controls"));
    auto *columns = new QHBoxLayout(&window);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    for (const Appearance appearance : {Appearance::dark, Appearance::light})
        columns->addWidget(new Gallery(appearance));
    if (!parser.isSet(picture)) {
        window.show();
        return QApplication::exec();
    }
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QApplication::processEvents();
    if (window.grab().save(parser.value(picture)))
        return 0;
    QTextStream(stderr) << "The picture could not be written to " << parser.value(picture) << Qt::endl;
    return 1;
}
