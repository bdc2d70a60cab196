#pragma once

#include "base/Result.h"

namespace tembra {

// What goes wrong with an update is told to the user by its sentence alone.
[[nodiscard]] inline tl::unexpected<Error> updateFailure(const QString &message) {
    return failure({QStringLiteral("Tembra.Updates"), 1, message, {}});
}

} // namespace tembra
