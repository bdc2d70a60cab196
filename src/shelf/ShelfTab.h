#pragma once

#include <QString>

#include <optional>

namespace tembra {

// The tabs by their fixed numbers.
enum class ShelfTab { screenshots = 0, imageToText = 1, fileTray = 2 };

// The name that the command line and the status use: "tray", "screenshots", "text".
[[nodiscard]] QString commandName(ShelfTab tab);
[[nodiscard]] std::optional<ShelfTab> shelfTabNamed(const QString &commandName);

} // namespace tembra
