#include "app/CommandLine.h"

#include "shelf/ShelfTab.h"
#include "windows/settings/SettingsPageId.h"

#include <QCoreApplication>
#include <QHash>

#include <optional>
#include <utility>

namespace tembra {

namespace {

QString translated(const char *text) {
    return QCoreApplication::translate("CommandLine", text);
}

tl::unexpected<Error> wrongUsage(const QString &message) {
    return failure({QStringLiteral("Tembra.CommandLine"), 2, message, {}});
}

std::optional<CommandLine::Verb> verbNamed(const QString &word) {
    using Verb = CommandLine::Verb;
    static const QHash<QString, Verb> verbs{
        {QStringLiteral("open"), Verb::open},         {QStringLiteral("close"), Verb::close},
        {QStringLiteral("toggle"), Verb::toggle},     {QStringLiteral("status"), Verb::status},
        {QStringLiteral("add"), Verb::add},           {QStringLiteral("edit"), Verb::edit},
        {QStringLiteral("scan"), Verb::scan},         {QStringLiteral("render"), Verb::render},
        {QStringLiteral("ocr"), Verb::ocr},           {QStringLiteral("quit"), Verb::quit},
        {QStringLiteral("settings"), Verb::settings}, {QStringLiteral("doctor"), Verb::doctor},
        {QStringLiteral("help"), Verb::help},         {QStringLiteral("--help"), Verb::help},
        {QStringLiteral("-h"), Verb::help},           {QStringLiteral("--version"), Verb::version}};
    const auto found = verbs.constFind(word);
    return found == verbs.cend() ? std::nullopt : std::optional(*found);
}

bool hasJson(CommandLine::Verb verb) {
    using Verb = CommandLine::Verb;
    return verb == Verb::status || verb == Verb::scan || verb == Verb::ocr || verb == Verb::doctor;
}

// What `ocr` can be told; false for every other word.
bool takeTextOption(CommandLine &line, const QString &word) {
    if (word == u"--words")
        line.words = true;
    else if (word == u"--paragraphs")
        line.textLayout = OCRTextLayout::paragraphs;
    else if (word == u"--one-line")
        line.textLayout = OCRTextLayout::oneLine;
    else
        return false;
    return true;
}

// Takes one word after the verb, and its value where it has one.
Result<void> takeWord(CommandLine &line, QStringList &words) {
    using Verb = CommandLine::Verb;
    const QString word = words.takeFirst();
    if (word == u"--json" && hasJson(line.verb)) {
        line.json = true;
        return {};
    }
    if (line.verb == Verb::ocr && takeTextOption(line, word))
        return {};
    if (word == u"--tab" && line.verb == Verb::open) {
        if (words.isEmpty() || !shelfTabNamed(words.constFirst()))
            return wrongUsage(
                translated(QT_TRANSLATE_NOOP("CommandLine", "--tab takes tray, screenshots or text.")));
        line.tab = words.takeFirst();
        return {};
    }
    if (line.verb == Verb::add) {
        // Whatever follows is a file's name, as with other programs.
        line.files += word == u"--" ? std::exchange(words, {}) : QStringList{word};
        return {};
    }
    if (line.verb == Verb::render && (word == u"--edits" || word == u"-o")) {
        if (words.isEmpty())
            return wrongUsage(translated(QT_TRANSLATE_NOOP("CommandLine", "%1 takes a file.")).arg(word));
        (word == u"-o" ? line.output : line.edits) = words.takeFirst();
        return {};
    }
    if (line.verb == Verb::settings && line.page.isEmpty()) {
        if (!settingsPageNamed(word))
            return wrongUsage(translated(QT_TRANSLATE_NOOP(
                "CommandLine",
                "settings takes general, screenshots, editor, tray, text, shortcut, doctor or about.")));
        line.page = word;
        return {};
    }
    const bool takesPath = line.verb == Verb::scan || line.verb == Verb::render || line.verb == Verb::edit ||
                           line.verb == Verb::ocr;
    if (takesPath && line.path.isEmpty() && !word.startsWith(u'-')) {
        line.path = word;
        return {};
    }
    return wrongUsage(
        translated(QT_TRANSLATE_NOOP("CommandLine", "Unexpected word on the command line: %1")).arg(word));
}

} // namespace

Result<CommandLine> CommandLine::parse(const QStringList &words) {
    CommandLine line;
    if (words.isEmpty())
        return line;
    if (words == QStringList{QStringLiteral("--background")}) {
        line.background = true;
        return line;
    }
    const auto verb = verbNamed(words.constFirst());
    if (!verb)
        return wrongUsage(translated(QT_TRANSLATE_NOOP("CommandLine", "There is no command “%1”."))
                              .arg(words.constFirst()));
    line.verb = *verb;
    QStringList rest = words.mid(1);
    while (!rest.isEmpty()) {
        if (const auto taken = takeWord(line, rest); !taken)
            return failure(taken.error());
    }
    if (line.verb == Verb::scan && line.path.isEmpty())
        return wrongUsage(translated(QT_TRANSLATE_NOOP("CommandLine", "scan takes the folder to look at.")));
    if (line.verb == Verb::add && line.files.isEmpty())
        return wrongUsage(
            translated(QT_TRANSLATE_NOOP("CommandLine", "add takes the files to put into the file tray.")));
    if (line.verb == Verb::edit && line.path.isEmpty())
        return wrongUsage(translated(QT_TRANSLATE_NOOP("CommandLine", "edit takes the image to open.")));
    if (line.verb == Verb::ocr && line.path.isEmpty())
        return wrongUsage(translated(QT_TRANSLATE_NOOP("CommandLine", "ocr takes the image to read.")));
    if (line.verb == Verb::render && (line.path.isEmpty() || line.edits.isEmpty() || line.output.isEmpty()))
        return wrongUsage(translated(
            QT_TRANSLATE_NOOP("CommandLine", "render takes an image, --edits and -o with a file each.")));
    return line;
}

QString CommandLine::usage() {
    return translated(QT_TRANSLATE_NOOP(
        "CommandLine",
        "Usage: tembra [COMMAND]\n"
        "\n"
        "  tembra                       start, or show the shelf of the running one\n"
        "  tembra --background          start without showing anything, as at login\n"
        "  tembra open [--tab TAB]      open the shelf (TAB: tray, screenshots or text)\n"
        "  tembra close                 close the shelf\n"
        "  tembra toggle                open or close the shelf\n"
        "  tembra add FILE...           put files into the file tray\n"
        "  tembra edit FILE             open a screenshot in the editor\n"
        "  tembra settings [PAGE]       open the settings (PAGE: general, screenshots, editor,\n"
        "                               tray, text, shortcut, doctor or about)\n"
        "  tembra doctor [--json]       tell what works on this desktop, and what mends the rest\n"
        "  tembra status [--json]       tell the state of the running one\n"
        "  tembra scan FOLDER [--json]  tell what is recognised as a capture, and why\n"
        "  tembra render FILE --edits EDITS.json -o OUT\n"
        "                               draw annotations and crop onto an image\n"
        "  tembra ocr FILE [--paragraphs | --one-line] [--words] [--json]\n"
        "                               read the text of an image\n"
        "  tembra quit                  end the running one\n"
        "  tembra --version, --help\n"));
}

} // namespace tembra
