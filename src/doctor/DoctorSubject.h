#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tembra {

// What the user has chosen, which is to be seen working. A value.
struct DoctorSubject {
    // The watched folder, absolute and clean; of one that is not there now, where it was.
    std::optional<QString> folder;
    bool isShortcutOn = false;
    QString shortcutTitle;
    // The program runs that would take it.
    bool isShortcutTried = true;
    // Why it does not work.
    std::optional<QString> shortcutError;
    // By their codes; none means the usual ones.
    QStringList languages;
    // Run for each new capture: a program and its arguments.
    QStringList newCaptureCommand;
};

} // namespace tembra
