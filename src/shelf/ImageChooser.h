#pragma once

#include <QString>

#include <optional>

namespace tembra {

// Asks the user for an image file, starting in `folder`; nothing when the user changed their mind. Runs its
// own event loop; main thread.
[[nodiscard]] std::optional<QString> askForImage(const QString &folder);

} // namespace tembra
