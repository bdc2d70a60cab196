#pragma once

#include "platform/linux/recognition/worker/ReadText.h"

#include <span>

namespace tembra::recognition {

// A part of the picture, from one side to the other, that an engine reads by itself. Rows of the picture;
// bottoms are outside. Lines count where their middle is between `firstLine` and `lastLine`; the rest is
// there so that no line is cut.
struct Stripe {
    int top = 0;
    int bottom = 0;
    int firstLine = 0;
    int lastLine = 0;

    bool operator==(const Stripe &) const = default;
};

// Cuts where there is the least ink near the even places; `rowInk` is how many pixels of each row have ink.
// The overlap is there even where a row has none: an engine passes over text at its picture's edge.
[[nodiscard]] std::vector<Stripe> stripes(std::span<const int> rowInk, int count, int overlap);

// The lines that count of each stripe; what two stripes have read is there once.
[[nodiscard]] std::vector<ReadLine> joined(std::span<const Stripe> stripes,
                                           std::vector<std::vector<ReadLine>> lines);

} // namespace tembra::recognition
