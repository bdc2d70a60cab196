#include "EditorGallery.h"

#include <QApplication>
#include <QCommandLineParser>

// tembra-editor-gallery [--light] [--tool NUMBER] [--width POINTS] [--banner]: shows what stands around the
// editor's canvas.
int main(int argc, char **argv) {
    using namespace tembra;
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption light(QStringLiteral("light"), QStringLiteral("Light instead of dark."));
    const QCommandLineOption banner(QStringLiteral("banner"), QStringLiteral("With a banner."));
    const QCommandLineOption tool(QStringLiteral("tool"), QStringLiteral("The tool in use, from 0."),
                                  QStringLiteral("NUMBER"), QStringLiteral("1"));
    const QCommandLineOption width(QStringLiteral("width"), QStringLiteral("The window's width."),
                                   QStringLiteral("POINTS"), QStringLiteral("1200"));
    parser.addOptions({light, banner, tool, width});
    parser.addHelpOption();
    parser.process(application);

    constexpr int height = 740;
    EditorGallery window(parser.isSet(light) ? Appearance::light : Appearance::dark);
    window.setWindowTitle(QStringLiteral("Tembra's editor"));
    window.resize(parser.value(width).toInt(), height);
    window.choose(editorTool(parser.value(tool).toInt()).value_or(EditorTool::arrow));
    window.show();
    if (parser.isSet(banner))
        window.showBanner();
    return QApplication::exec();
}
