#include "app/AppDelegate.h"
#include "app/Catalogues.h"
#include "app/CommandLine.h"
#include "app/DoctorCommand.h"
#include "app/OCRCommand.h"
#include "app/ProgramVersion.h"
#include "app/RenderCommand.h"
#include "app/ScanCommand.h"
#include "base/FileUri.h"
#include "base/QtScheduler.h"
#include "controls/AccessibleControls.h"
#include "controls/AccessibleProgram.h"
#include "controls/Motion.h"
#include "platform/Platform.h"
#include "platform/SingleInstance.h"

#include <QApplication>
#include <QDir>
#include <QLocale>

#include <cstdio>
#include <cstdlib>

using namespace tembra;

namespace {

enum ExitStatus { done = 0, failed = 1, wrongUsage = 2 };

void print(std::FILE *stream, const QString &text) {
    std::fputs(text.toUtf8().constData(), stream);
    if (!text.isEmpty() && !text.endsWith(u'\n'))
        std::fputc('\n', stream);
}

int finish(const Result<QString> &answer) {
    print(answer ? stdout : stderr, answer ? *answer : answer.error().message);
    return answer ? done : failed;
}

QStringList wordsOf(int argc, char **argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(pathFromBytes(argv[i]));
    return words;
}

void describeProgram() {
    QCoreApplication::setApplicationName(QStringLiteral("Tembra"));
    QCoreApplication::setApplicationVersion(programVersion());
}

// The running program has another current folder, and a message carries nothing but text.
QStringList uris(const QStringList &files) {
    QStringList uris;
    for (const QString &file : files)
        uris += QString::fromLatin1(fileUri(QDir::cleanPath(QDir::current().absoluteFilePath(file))));
    return uris;
}

Result<QString> sendToRunning(const CommandLine &line) {
    using Verb = CommandLine::Verb;
    const auto instance = makeSingleInstance();
    switch (line.verb) {
    case Verb::open:
        return instance->send(QStringLiteral("open"),
                              line.tab.isEmpty() ? QStringList() : QStringList{line.tab}, true);
    case Verb::toggle:
        return instance->send(QStringLiteral("toggle"), {}, true);
    case Verb::close:
        return instance->send(QStringLiteral("close"), {}, false);
    case Verb::add:
        return instance->send(QStringLiteral("add"), uris(line.files), true);
    case Verb::edit:
        return instance->send(QStringLiteral("edit"), uris({line.path}), true);
    case Verb::settings:
        return instance->send(QStringLiteral("settings"),
                              line.page.isEmpty() ? QStringList() : QStringList{line.page}, true);
    case Verb::status:
        return instance->send(QStringLiteral("status"),
                              line.json ? QStringList{QStringLiteral("--json")} : QStringList(), false);
    case Verb::quit:
        return instance->send(QStringLiteral("quit"), {}, false);
    case Verb::start:
    case Verb::scan:
    case Verb::render:
    case Verb::ocr:
    case Verb::doctor:
    case Verb::help:
    case Verb::version:
        break;
    }
    return QString();
}

// With pictures and the desktop's fonts, on no display.
int runPictureCommand(const CommandLine &line, int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const Catalogues catalogues(QLocale::system().uiLanguages());
    return finish(line.verb == CommandLine::Verb::ocr ? readText(line)
                                                      : renderImage(line.path, line.edits, line.output));
}

// In the user's language, for which there has to be an application.
int tellOfNoDisplay(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const Catalogues catalogues(QLocale::system().uiLanguages());
    return finish(preparePlatformEnvironment().map([] { return QString(); }));
}

// On the display of the desktop, as the program itself.
int runDoctor(const CommandLine &line, int argc, char **argv) {
    if (!preparePlatformEnvironment())
        return tellOfNoDisplay(argc, argv);
    const QApplication application(argc, argv);
    restorePlatformEnvironment();
    const Catalogues catalogues(QLocale::system().uiLanguages());
    QtScheduler scheduler;
    const DoctorReport report = examineDesktop(scheduler);
    print(stdout, line.json ? QString::fromUtf8(report.json()) : report.text());
    return report.isHealthy() ? done : failed;
}

// A command that ends by itself.
int runCommand(const CommandLine &line, int argc, char **argv) {
    if (line.verb == CommandLine::Verb::render || line.verb == CommandLine::Verb::ocr)
        return runPictureCommand(line, argc, argv);
    if (line.verb == CommandLine::Verb::doctor)
        return runDoctor(line, argc, argv);
    const QCoreApplication application(argc, argv);
    const Catalogues catalogues(QLocale::system().uiLanguages());
    switch (line.verb) {
    case CommandLine::Verb::help:
        print(stdout, CommandLine::usage());
        return done;
    case CommandLine::Verb::version:
        print(stdout, QStringLiteral("Tembra ") + programVersionWithCommit());
        return done;
    case CommandLine::Verb::scan:
        return finish(scanFolder(line.path, line.json));
    default:
        return finish(sendToRunning(line));
    }
}

// The program itself, until it quits.
int runShelf(const CommandLine &line, int argc, char **argv) {
    if (!preparePlatformEnvironment())
        return tellOfNoDisplay(argc, argv);
    // By it desktops find the name and the icon of the windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("app.tembra.Tembra"));
    const QApplication application(argc, argv);
    restorePlatformEnvironment();
    installAccessibleProgram();
    installAccessibleControls();
    QApplication::setQuitOnLastWindowClosed(false);
    const Catalogues catalogues(QLocale::system().uiLanguages());

    QtScheduler scheduler;
    Platform platform = makePlatform(scheduler);
    motion::askDesktop([&platform] { return platform.isMotionReduced(); });
    AppDelegate delegate(platform, scheduler);
    const auto instance = makeSingleInstance();
    const auto answer = [&](const QString &command, const QStringList &arguments) {
        // Who starts Tembra again while this one ends must find the name free.
        if (command == u"quit" && delegate.applicationShouldTerminate())
            instance->release();
        return delegate.perform(command, arguments);
    };
    auto claimed = instance->claim(answer);
    if (!claimed && claimed.error().code == SingleInstance::alreadyRunning) {
        if (line.background)
            return done;
        const auto reopened = instance->send(QStringLiteral("reopen"), {}, false);
        if (reopened)
            return finish(reopened);
        // It may have ended between the two calls.
        claimed = instance->claim(answer);
        if (!claimed)
            return finish(reopened);
    }
    if (!claimed)
        qWarning("%s", qUtf8Printable(claimed.error().message));

    delegate.onNewCapture = [&instance](const QString &path) { instance->announceCapture(path); };
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, [&] {
        delegate.applicationWillTerminate();
        instance->release();
    });
    delegate.applicationDidFinishLaunching();
    const int status = QApplication::exec();
    motion::askDesktop({});
    return status;
}

} // namespace

int main(int argc, char **argv) {
    describeProgram();
    const auto line = CommandLine::parse(wordsOf(argc, argv));
    if (!line) {
        print(stderr, line.error().message);
        print(stderr, CommandLine::usage());
        return wrongUsage;
    }
    if (line->verb == CommandLine::Verb::start)
        return runShelf(*line, argc, argv);
    // A command has nothing to put away, and the thread of Qt's D-Bus connection must not be caught by the
    // end of what it still uses.
    const int status = runCommand(*line, argc, argv);
    std::fflush(nullptr);
    std::quick_exit(status);
}
