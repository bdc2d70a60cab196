#pragma once

#include "settings/ScreenshotAutoCleanPeriod.h"

#include <functional>

namespace tembra {

// Asks whether auto-clean, which is about to move that many files, is to stay on. Returns at once; `decide`
// is called when the user has answered. Closing the question turns auto-clean off: nothing is moved without a
// yes.
void showSafetyReview(int count, ScreenshotAutoCleanPeriod period, std::function<void(bool keeps)> decide);

} // namespace tembra
