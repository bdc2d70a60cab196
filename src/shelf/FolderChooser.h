#pragma once

#include <QString>

#include <optional>

namespace tembra {

// What choosing a folder brings along.
enum class FolderChoice {
    savesThere,
    // Another folder, chosen in the settings: auto-clean is to be thought about anew.
    stopsAutoClean,
};

// Asks the user for the folder where screenshots should go, starting at `suggested`; nothing when the user
// changed their mind. Runs its own event loop; main thread.
[[nodiscard]] std::optional<QString> askForScreenshotsFolder(const QString &suggested,
                                                             FolderChoice choice = FolderChoice::savesThere);

} // namespace tembra
