#pragma once

#include "platform/linux/recognition/worker/Regions.h"

namespace tembra::recognition {

// A piece of a line that is read at once: words that stand close together.
struct TextSegment {
    PixelBox box;
    // The rows that most of the letters fill, from the baseline up.
    int coreTop = 0;
    int coreBottom = 0;
    // Ink stands out at least so much, and nowhere more than the strongest.
    int threshold = 0;
    int strongest = 0;
};

// What looks like text in an ink picture. Image space.
[[nodiscard]] std::vector<TextSegment> textSegments(const GreyPicture &ink);

} // namespace tembra::recognition
