#pragma once

#include <functional>

namespace tembra {

// Asks whether that many screenshots are to go to the Trash while the pinned ones stay. Returns at once;
// `clear` is called on a yes.
void showClearScreenshots(int count, int pinnedCount, std::function<void()> clear);

} // namespace tembra
