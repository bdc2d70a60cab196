#pragma once

#include "app/ProgramStatus.h"
#include "base/Result.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace tembra {

class ShelfController;

// Carries out, in the running program, what the command line of another process or the desktop asks. Main
// thread.
class CommandService {
public:
    // What belongs to the program's flow.
    struct Hooks {
        std::function<ProgramStatus()> status;
        std::function<void(std::optional<SettingsPageId> page)> showSettings;
        std::function<void()> reopen;
        std::function<void()> quit;
    };

    CommandService(ShelfController &shelf, Hooks hooks) : m_shelf(shelf), m_hooks(std::move(hooks)) {}

    // Gives what the command prints, or the one sentence that says why it failed.
    [[nodiscard]] Result<QString> perform(const QString &command, const QStringList &arguments);

private:
    Result<QString> open(const QStringList &arguments);
    // Paths or file URIs.
    Result<QString> add(const QStringList &files);
    // A path or file URI.
    Result<QString> edit(const QStringList &files);
    Result<QString> showSettings(const QStringList &arguments) const;
    Result<QString> status(const QStringList &arguments) const;

    ShelfController &m_shelf;
    const Hooks m_hooks;
};

} // namespace tembra
