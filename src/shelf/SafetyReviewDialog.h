#pragma once

#include "settings/ScreenshotAutoCleanPeriod.h"

#include <functional>

namespace tembra {

// Asks whether auto-clean, which is about to move that many files, is to stay on. Returns at once; `decide`
// is called when the user has answered; Escape is a no. Closing the window is no answer: nothing is moved,
// and a later start asks again.
void showSafetyReview(int count, ScreenshotAutoCleanPeriod period, std::function<void(bool keeps)> decide);

} // namespace tembra
