#pragma once

#include <QKeyEvent>

#include <optional>

namespace tembra {

// What a key does in the shelf, whichever view has the focus.
enum class ShelfCommand {
    undo,
    redo,
    copy,
    paste,
    pin,
    reveal,
    recognize,
    remove,
    preview,
    nextTab,
    previousTab
};

// Nothing when the key is for somebody else. Ctrl stands for the command key of macOS.
[[nodiscard]] std::optional<ShelfCommand> shelfCommand(const QKeyEvent &event);

} // namespace tembra
