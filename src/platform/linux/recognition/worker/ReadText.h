#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace tembra::recognition {

// Pixels of the picture, origin top left; right and bottom are outside.
struct TextBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    [[nodiscard]] TextBox united(const TextBox &other) const {
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
                std::max(bottom, other.bottom)};
    }

    bool operator==(const TextBox &) const = default;
};

struct ReadWord {
    std::string text;
    TextBox box;
    // 0 … 100.
    double confidence = 100;
};

// Never empty.
using ReadLine = std::vector<ReadWord>;

[[nodiscard]] inline TextBox boxOf(const ReadLine &line) {
    TextBox box = line.front().box;
    for (const ReadWord &word : line)
        box = box.united(word.box);
    return box;
}

} // namespace tembra::recognition
