#include "shelf/ShelfCommand.h"

#include <QKeySequence>

namespace tembra {

namespace {

std::optional<ShelfCommand> withCtrl(int key) {
    switch (key) {
    case Qt::Key_Z:
        return ShelfCommand::undo;
    case Qt::Key_Y:
        return ShelfCommand::redo;
    case Qt::Key_P:
        return ShelfCommand::pin;
    case Qt::Key_F:
        return ShelfCommand::reveal;
    case Qt::Key_T:
        return ShelfCommand::recognize;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<ShelfCommand> shelfCommand(const QKeyEvent &event) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const int key = event.key();
    // A key that is held down removes once.
    if ((key == Qt::Key_Delete || key == Qt::Key_Backspace) && !event.isAutoRepeat() &&
        !(modifiers & (Qt::ControlModifier | Qt::AltModifier)))
        return ShelfCommand::remove;
    if (key == Qt::Key_Space && !(modifiers & Qt::ControlModifier))
        return ShelfCommand::preview;
    // With Shift, Tab is another key.
    if ((modifiers & Qt::ControlModifier) && (key == Qt::Key_Tab || key == Qt::Key_Backtab))
        return key == Qt::Key_Backtab || (modifiers & Qt::ShiftModifier) ? ShelfCommand::previousTab
                                                                         : ShelfCommand::nextTab;
    if (modifiers == (Qt::ControlModifier | Qt::ShiftModifier) && key == Qt::Key_Z)
        return ShelfCommand::redo;
    // Also Ctrl+Insert and Shift+Insert.
    if (event.matches(QKeySequence::Copy))
        return ShelfCommand::copy;
    if (event.matches(QKeySequence::Paste))
        return ShelfCommand::paste;
    return modifiers == Qt::ControlModifier ? withCtrl(key) : std::nullopt;
}

} // namespace tembra
