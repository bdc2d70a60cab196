#include "platform/linux/AutostartEntry.h"

#include "base/FilePath.h"
#include "platform/linux/tools/RcFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <utility>

namespace tembra {

namespace {

using Status = LoginItemService::Status;

const QString fileName = QStringLiteral("app.tembra.Tembra.desktop");
const QByteArray group = QByteArrayLiteral("Desktop Entry");
const QByteArray execKey = QByteArrayLiteral("Exec");
const QByteArray tryExecKey = QByteArrayLiteral("TryExec");
const QByteArray hiddenKey = QByteArrayLiteral("Hidden");
// Says of a hidden entry that it was the program that hid the system's.
const QByteArray unregisteredKey = QByteArrayLiteral("X-Tembra-Unregistered");
// What desktops write when the user switches an entry off.
const std::array<QByteArray, 2> enabledKeys{QByteArrayLiteral("X-GNOME-Autostart-enabled"),
                                            QByteArrayLiteral("X-MATE-Autostart-enabled")};

QString translated(const char *text) {
    return QCoreApplication::translate("LoginItem", text);
}

tl::unexpected<Error> entryFailure(const QString &message) {
    return failure({QStringLiteral("Tembra.LoginItem"), 1, message, {}});
}

// As a value of Exec has it: quoted, with what is special in a quoted argument escaped, and then what is
// special in a string.
QByteArray quoted(QByteArray argument) {
    argument.replace('\\', "\\\\");
    for (const char *const special : {"\"", "`", "$"})
        argument.replace(special, QByteArray("\\") + special);
    argument.replace('%', "%%");
    argument.replace('\\', "\\\\").replace('\n', "\\n").replace('\t', "\\t").replace('\r', "\\r");
    return '"' + argument + '"';
}

// What a string of a desktop entry stands for.
QByteArray unescaped(const QByteArray &value) {
    constexpr std::array<std::pair<char, char>, 5> escapes{
        {{'s', ' '}, {'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'\\', '\\'}}};
    QByteArray text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const auto *const escape = std::ranges::find_if(escapes, [&](const auto &known) {
            return value[i] == '\\' && i + 1 < value.size() && value[i + 1] == known.first;
        });
        const bool isEscape = escape != escapes.end();
        text += isEscape ? escape->second : value[i];
        i += isEscape ? 1 : 0;
    }
    return text;
}

bool isExecutable(const QString &program) {
    if (!program.contains(u'/'))
        return !QStandardPaths::findExecutable(program).isEmpty();
    const QFileInfo file(program);
    return file.isFile() && file.isExecutable();
}

bool isTrue(const RcFile &entry, const QByteArray &key) {
    return entry.value(group, key) == "true";
}

bool isSwitchedOff(const RcFile &entry) {
    return isTrue(entry, hiddenKey) || std::ranges::any_of(enabledKeys, [&](const QByteArray &key) {
               return entry.value(group, key) == "false";
           });
}

// What each desktop has for it, by the names of XDG_CURRENT_DESKTOP.
std::optional<QStringList> settingsProgram(const QString &desktop) {
    struct Known {
        const char *desktop;
        const char *commandLine;
    };
    constexpr std::array programs{
        Known{"KDE", "systemsettings kcm_autostart"}, Known{"KDE", "systemsettings5 kcm_autostart"},
        Known{"KDE", "kcmshell5 autostart"},          Known{"XFCE", "xfce4-session-settings"},
        Known{"MATE", "mate-session-properties"},     Known{"X-Cinnamon", "cinnamon-settings startup"},
        Known{"LXQt", "lxqt-config-session"},         Known{"LXDE", "lxsession-edit"},
        Known{"GNOME", "gnome-session-properties"},   Known{"GNOME", "gnome-tweaks"},
        Known{"Unity", "gnome-session-properties"},
    };
    const QStringList names = desktop.split(u':');
    for (const Known &known : programs) {
        QStringList words = QString::fromLatin1(known.commandLine).split(u' ');
        if (names.contains(QString::fromLatin1(known.desktop)) && isExecutable(words.constFirst()))
            return words;
    }
    return std::nullopt;
}

} // namespace

AutostartEntry::AutostartEntry(Places places, QString program)
    : m_places(std::move(places)), m_program(std::move(program)) {}

AutostartEntry AutostartEntry::ofUser() {
    Places places;
    const QString folder = QStringLiteral("/autostart");
    places.systemFolders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    for (QString &path : places.systemFolders)
        path += folder;
    places.userFolder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + folder;
    places.systemFolders.removeAll(places.userFolder);
    // An AppImage runs from a place that goes with it.
    const QString image = qEnvironmentVariable("APPIMAGE");
    return {std::move(places), image.isEmpty() ? QCoreApplication::applicationFilePath() : image};
}

LoginItemService AutostartEntry::service() const {
    return {.status = [entry = *this] { return entry.status(); },
            .registerItem = [entry = *this] { return entry.enable(); },
            .unregisterItem = [entry = *this] { return entry.disable(); },
            .openApprovalSettings = openDesktopSettings};
}

Status AutostartEntry::status() const {
    if (!isExecutable(m_program))
        return Status::notFound;
    const bool isUsers = QFileInfo::exists(userEntry());
    // One that is not there is empty.
    const auto entry = RcFile::read(isUsers ? userEntry() : systemEntry().value_or(userEntry()));
    // What cannot be read no desktop starts.
    return entry && entry->hasGroup(group) ? statusOf(*entry) : Status::notRegistered;
}

Status AutostartEntry::statusOf(const RcFile &entry) const {
    if (isTrue(entry, hiddenKey) && isTrue(entry, unregisteredKey))
        return Status::notRegistered;
    if (isSwitchedOff(entry))
        return Status::requiresApproval;
    const auto program = programOf(entry.value(group, execKey).value_or(QByteArray()));
    const auto needed = entry.value(group, tryExecKey);
    const bool isThere =
        program && isExecutable(*program) && (!needed || isExecutable(pathFromBytes(unescaped(*needed))));
    // A program that has moved since can be registered anew.
    return isThere ? Status::enabled : Status::notRegistered;
}

Result<void> AutostartEntry::enable() const {
    if (!isExecutable(m_program))
        return entryFailure(translated(
            QT_TRANSLATE_NOOP("LoginItem", "Launch at login is unavailable for this copy of Tembra")));
    auto entry = RcFile::read(userEntry());
    if (!entry)
        return failure(entry.error());
    entry->setValue(group, "Type", "Application");
    if (!entry->value(group, "Name"))
        entry->setValue(group, "Name", "Tembra");
    if (!entry->value(group, "Icon"))
        entry->setValue(group, "Icon", "app.tembra.Tembra");
    entry->setValue(group, execKey, quoted(pathBytes(m_program)) + " --background");
    entry->remove(group, hiddenKey);
    entry->remove(group, unregisteredKey);
    entry->remove(group, tryExecKey);
    for (const QByteArray &key : enabledKeys)
        entry->remove(group, key);
    return save(*entry);
}

Result<void> AutostartEntry::disable() const {
    if (systemEntry()) {
        auto entry = RcFile::read(userEntry());
        if (!entry)
            return failure(entry.error());
        entry->setValue(group, "Type", "Application");
        entry->setValue(group, "Name", "Tembra");
        entry->setValue(group, hiddenKey, "true");
        entry->setValue(group, unregisteredKey, "true");
        return save(*entry);
    }
    QFile file(userEntry());
    const bool isThere = file.exists() || QFileInfo(file).isSymLink();
    if (!isThere || file.remove())
        return {};
    return entryFailure(translated(QT_TRANSLATE_NOOP("LoginItem", "“%1” can’t be removed: %2"))
                            .arg(userEntry(), file.errorString()));
}

std::optional<QString> AutostartEntry::programOf(const QByteArray &exec) {
    const QByteArray text = unescaped(exec).trimmed();
    const bool isQuoted = text.startsWith('"');
    QByteArray program;
    qsizetype i = isQuoted ? 1 : 0;
    for (; i < text.size() && text[i] != (isQuoted ? '"' : ' '); ++i) {
        if (isQuoted && text[i] == '\\' && i + 1 < text.size())
            ++i;
        program += text[i];
    }
    // A quoted argument has an end.
    if (program.isEmpty() || (isQuoted && i == text.size()))
        return std::nullopt;
    return pathFromBytes(program.replace("%%", "%"));
}

Result<void> AutostartEntry::openDesktopSettings() {
    const auto program = settingsProgram(qEnvironmentVariable("XDG_CURRENT_DESKTOP"));
    if (program && QProcess::startDetached(program->constFirst(), program->mid(1)))
        return {};
    return entryFailure(translated(QT_TRANSLATE_NOOP(
        "LoginItem", "This desktop has no settings for the programs that start at login.")));
}

Result<void> AutostartEntry::save(const RcFile &entry) const {
    return entry.save().map_error([this](const Error &error) {
        const QString message = translated(QT_TRANSLATE_NOOP("LoginItem", "“%1” can’t be written: %2"))
                                    .arg(userEntry(), error.message);
        return Error{error.domain, error.code, message, {}};
    });
}

QString AutostartEntry::userEntry() const {
    return m_places.userFolder + u'/' + fileName;
}

std::optional<QString> AutostartEntry::systemEntry() const {
    for (const QString &folder : m_places.systemFolders) {
        if (QString path = folder + u'/' + fileName; QFileInfo::exists(path))
            return path;
    }
    return std::nullopt;
}

} // namespace tembra
