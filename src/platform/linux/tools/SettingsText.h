#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>

#include <optional>

namespace tembra {

// What the bytes of a settings value say, in the notation of each family of programs.

// KDE's and Xfce's notation: UTF-8 with backslash escapes.
[[nodiscard]] QString fromKConfig(const QByteArray &value);
[[nodiscard]] QByteArray toKConfig(const QString &text);
// A KDE value of a key flagged "$e": with $NAME and ${NAME} replaced. Nothing when it asks for a command.
[[nodiscard]] std::optional<QString> expandedKConfig(const QString &text,
                                                     const QProcessEnvironment &environment);

// QSettings' notation: quotes and escapes. Nothing when the value is a list or another type than text.
[[nodiscard]] std::optional<QString> fromQtIni(const QByteArray &value);
[[nodiscard]] QByteArray toQtIni(const QString &text);

// The absolute path that a setting means by a path or a "file:" URI; nothing for anything else. "~" and "~/…"
// stay as they are.
[[nodiscard]] std::optional<QString> folderPath(const QString &pathOrUri);
// The URI of a folder as settings files carry it.
[[nodiscard]] QByteArray folderUri(const QString &path);

// What every file name made from the template begins with: the text of its last component before the first of
// the placeholder's marks, without the separators at its end. Nothing when there is no such text.
[[nodiscard]] std::optional<QString> fixedBeginning(const QString &nameTemplate, QChar mark);

} // namespace tembra
