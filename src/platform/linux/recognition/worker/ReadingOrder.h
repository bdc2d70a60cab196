#pragma once

#include "platform/linux/recognition/worker/ReadText.h"

namespace tembra::recognition {

// Column by column and from top to bottom in each: the page is cut again and again along its widest gap
// (recursive XY-cut: Nagy and Seth, 1984).
[[nodiscard]] std::vector<ReadLine> inReadingOrder(std::vector<ReadLine> lines);

} // namespace tembra::recognition
