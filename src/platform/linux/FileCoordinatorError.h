#pragma once

#include "platform/FileCoordinator.h"

namespace tembra {

// The error with its sentence.
[[nodiscard]] Error fileCoordinatorError(FileCoordinator::ErrorCode code);

} // namespace tembra
