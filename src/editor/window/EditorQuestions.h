#pragma once

#include <QStringList>

#include <functional>

class QWidget;

namespace tembra {

// What the editor asks in a window of its own. Each returns at once; the answer comes when the user has
// given one.
struct EditorQuestions {
    enum class CloseAnswer { save, discard, cancel };

    // What to do with the edits of these files.
    static void askToClose(QWidget &window, const QStringList &unsaved,
                           std::function<void(CloseAnswer)> answered);
    // Whether the edits may be lost, to show what another program wrote.
    static void askToReload(QWidget &window, const QString &name, std::function<void()> reload);
    // Where a copy goes, starting at `suggested`; replacing a file was agreed to.
    static void askForCopy(QWidget &window, const QString &suggested,
                           std::function<void(const QString &path)> save);
};

} // namespace tembra
