#pragma once

#include <QString>

#include <optional>

namespace tembra {

// Asks the user for the folder where screenshots should go, starting at `suggested`; nothing when the user
// changed their mind. Runs its own event loop; main thread.
[[nodiscard]] std::optional<QString> askForScreenshotsFolder(const QString &suggested);

} // namespace tembra
