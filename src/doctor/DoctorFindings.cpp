#include "doctor/DoctorFindings.h"

#include "doctor/ProbeFile.h"
#include "settings/FolderPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace tembra {

namespace {

using State = Finding::State;

QString translated(const char *source) {
    return QCoreApplication::translate("Doctor", source);
}

QString shortPath(const QString &path) {
    return withHomeShort(path, QDir::homePath());
}

QString chooseFolder() {
    return translated(
        QT_TRANSLATE_NOOP("Doctor", "Choose a folder in the settings: tembra settings screenshots"));
}

// Of a Trash that the trial made, nothing is to be left.
void removeEmptyTrash(const QString &trashedFile, const QStringList &lasting) {
    const QString trash = QDir::cleanPath(QFileInfo(trashedFile).path() + QStringLiteral("/.."));
    if (lasting.contains(trash))
        return;
    for (const char *part : {"/files", "/info", ""})
        QDir().rmdir(trash + QString::fromLatin1(part));
}

} // namespace

Finding folderFinding(const DoctorSubject &subject) {
    if (!subject.folder)
        return {State::limited, translated(QT_TRANSLATE_NOOP("Doctor", "No folder is chosen yet.")),
                chooseFolder()};
    const QFileInfo folder(*subject.folder);
    const QString name = shortPath(*subject.folder);
    if (!folder.isDir())
        return {State::broken, translated(QT_TRANSLATE_NOOP("Doctor", "“%1” is not there.")).arg(name),
                translated(QT_TRANSLATE_NOOP("Doctor",
                                             "Connect its disk, or choose another folder in the settings."))};
    if (!folder.isReadable() || !folder.isExecutable())
        return {State::broken, translated(QT_TRANSLATE_NOOP("Doctor", "“%1” may not be read.")).arg(name),
                chooseFolder()};
    if (!folder.isWritable())
        return {State::limited,
                translated(
                    QT_TRANSLATE_NOOP(
                        "Doctor", "“%1” may be read but not changed: captures cannot be renamed or removed."))
                    .arg(name),
                chooseFolder()};
    return {State::ok, name, {}};
}

Finding toolFinding(const ScreenCapturePreferences &preferences, const ScreenshotDestination &destination,
                    const std::optional<QString> &folder) {
    const QString tool = preferences.toolName();
    const QString change = translated(QT_TRANSLATE_NOOP(
        "Doctor", "Choose the folder once more in the settings: the tool is then told of it."));
    switch (destination.kind) {
    case ScreenshotDestination::Kind::clipboard:
        return {State::limited,
                translated(QT_TRANSLATE_NOOP("Doctor", "%1 puts captures on the clipboard and saves none."))
                    .arg(tool),
                change};
    case ScreenshotDestination::Kind::other:
        return {State::limited,
                translated(QT_TRANSLATE_NOOP("Doctor", "%1 does not save captures to a folder.")).arg(tool),
                change};
    case ScreenshotDestination::Kind::folder:
        break;
    }
    const QString name = shortPath(destination.folder);
    if (!preferences.isToolKnown())
        return {State::limited,
                translated(
                    QT_TRANSLATE_NOOP("Doctor", "Where this desktop’s screenshot tool saves is not known.")),
                translated(QT_TRANSLATE_NOOP("Doctor", "Let it save into “%1”."))
                    .arg(folder ? shortPath(*folder) : name)};
    if (folder && !isSameFolder(*folder, destination.folder))
        return {State::limited,
                translated(
                    QT_TRANSLATE_NOOP("Doctor", "%1 saves into “%2”, but captures are looked for in “%3”."))
                    .arg(tool, name, shortPath(*folder)),
                change};
    return {State::ok, translated(QT_TRANSLATE_NOOP("Doctor", "%1 saves into “%2”.")).arg(tool, name), {}};
}

Finding shortcutFinding(const DoctorSubject &subject, const Finding &desktop) {
    if (!subject.isShortcutOn)
        return {desktop.state,
                translated(QT_TRANSLATE_NOOP("Doctor", "No shortcut is switched on.")) + u' ' + desktop.text,
                desktop.remedy};
    if (subject.shortcutError)
        return {State::broken, *subject.shortcutError,
                desktop.remedy.isEmpty()
                    ? translated(QT_TRANSLATE_NOOP("Doctor", "Choose another one: tembra settings shortcut"))
                    : desktop.remedy};
    if (!subject.isShortcutTried)
        return {State::limited,
                subject.shortcutTitle + QStringLiteral(". ") +
                    translated(QT_TRANSLATE_NOOP("Doctor", "It was not tried, because Tembra does not run.")),
                {}};
    return {desktop.state, subject.shortcutTitle + QStringLiteral(". ") + desktop.text, desktop.remedy};
}

Finding languagesFinding(const Result<std::vector<TextRecognizer::Language>> &installed,
                         const QStringList &wanted, Finding missing) {
    if (!installed)
        return {State::broken, installed.error().message, installed.error().recoverySuggestion};
    QStringList names;
    QStringList absent = wanted;
    for (const TextRecognizer::Language &language : *installed) {
        if (absent.removeAll(language.code) > 0 || wanted.isEmpty())
            names += language.name;
    }
    if (absent.isEmpty())
        return {State::ok,
                translated(QT_TRANSLATE_NOOP("Doctor", "Text is read in: %1.")).arg(names.join(u", ")),
                {}};
    if (names.isEmpty())
        missing.state = State::broken;
    missing.text = missing.text.arg(names.join(u", "), absent.join(u", "));
    // Packages have no underscores in their names.
    missing.remedy = missing.remedy.arg(QString(absent.constFirst()).replace(u'_', u'-'));
    return missing;
}

Finding commandFinding(const QStringList &command) {
    if (command.isEmpty())
        return {
            State::ok, translated(QT_TRANSLATE_NOOP("Doctor", "No command is run for new captures.")), {}};
    const QString &program = command.constFirst();
    if (QStandardPaths::findExecutable(program).isEmpty())
        return {State::broken,
                translated(QT_TRANSLATE_NOOP("Doctor", "There is no program “%1”.")).arg(program),
                translated(
                    QT_TRANSLATE_NOOP("Doctor", "Name it with its whole path: tembra settings screenshots"))};
    return {State::ok,
            translated(QT_TRANSLATE_NOOP("Doctor", "“%1” is run for new captures.")).arg(command.join(u' ')),
            {}};
}

Finding trashFinding(Trash &trash, const QString &folder, const QStringList &lasting) {
    const auto file = makeProbeFile(folder);
    if (!file)
        return {State::limited, translated(QT_TRANSLATE_NOOP("Doctor", "Nothing may be written there.")), {}};
    const auto trashed = trash.moveToTrash(*file, {});
    const auto restored =
        trashed ? trash.restore(*trashed, *file, {}) : Result<void>(failure(trashed.error()));
    QFile::remove(*file);
    if (trashed)
        removeEmptyTrash(*trashed, lasting);
    if (restored)
        return {State::ok, translated(QT_TRANSLATE_NOOP("Doctor", "Files move to the Trash and back.")), {}};
    return {State::broken, restored.error().message,
            translated(QT_TRANSLATE_NOOP("Doctor", "Remove files there with the file manager."))};
}

} // namespace tembra
