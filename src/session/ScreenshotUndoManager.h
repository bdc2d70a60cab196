#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>
#include <deque>
#include <functional>

namespace tembra {

// What can be undone and redone, newest last. An action registers its own reverse when it has been carried
// out, which may be later: it is told in which phase it runs. Main thread; owned by ShelfSession.
class ScreenshotUndoManager {
public:
    enum class Phase { doing, undoing, redoing };
    using Action = std::function<void(Phase)>;

    static constexpr std::size_t levelsOfUndo = 20;

    // In the phase it reverses: what is done can be undone, what is undone can be redone.
    void registerAction(Phase phase, const QString &name, Action action);
    // Takes the newest action and carries it out; whether there was one.
    bool undo();
    bool redo();

    // Newest first.
    [[nodiscard]] QStringList undoNames() const { return names(m_undo); }
    [[nodiscard]] QStringList redoNames() const { return names(m_redo); }

private:
    struct Step {
        QString name;
        Action action;
    };
    using Steps = std::deque<Step>;

    static void push(Steps &steps, Step step);
    static bool run(Steps &steps, Phase phase);
    [[nodiscard]] static QStringList names(const Steps &steps);

    Steps m_undo;
    Steps m_redo;
};

} // namespace tembra
