#pragma once

#include "base/Result.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace tembra {

class ShelfController;
struct EditorStatus;

// Carries out, in the running program, what the command line of another process or the desktop asks. Main
// thread.
class CommandService {
public:
    // `reopen` and `quit` belong to the program's flow.
    CommandService(ShelfController &shelf, std::function<EditorStatus()> editorStatus,
                   std::function<void()> reopen, std::function<void()> quit);

    // Gives what the command prints, or the one sentence that says why it failed.
    [[nodiscard]] Result<QString> perform(const QString &command, const QStringList &arguments);

private:
    Result<QString> open(const QStringList &arguments);
    // Paths or file URIs.
    Result<QString> add(const QStringList &files);
    // A path or file URI.
    Result<QString> edit(const QStringList &files);
    Result<QString> status(const QStringList &arguments) const;

    ShelfController &m_shelf;
    std::function<EditorStatus()> m_editorStatus;
    std::function<void()> m_reopen;
    std::function<void()> m_quit;
};

} // namespace tembra
