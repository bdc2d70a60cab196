#include "session/ScreenshotUndoManager.h"

#include <utility>

namespace tembra {

void ScreenshotUndoManager::registerAction(Phase phase, const QString &name, Action action) {
    if (phase == Phase::doing)
        m_redo.clear();
    push(phase == Phase::undoing ? m_redo : m_undo, {name, std::move(action)});
}

bool ScreenshotUndoManager::undo() {
    return run(m_undo, Phase::undoing);
}

bool ScreenshotUndoManager::redo() {
    return run(m_redo, Phase::redoing);
}

void ScreenshotUndoManager::push(Steps &steps, Step step) {
    steps.push_back(std::move(step));
    if (steps.size() > levelsOfUndo)
        steps.pop_front();
}

bool ScreenshotUndoManager::run(Steps &steps, Phase phase) {
    if (steps.empty())
        return false;
    const Step step = std::move(steps.back());
    steps.pop_back();
    step.action(phase);
    return true;
}

QStringList ScreenshotUndoManager::names(const Steps &steps) {
    QStringList names;
    for (const Step &step : steps)
        names.prepend(step.name);
    return names;
}

} // namespace tembra
