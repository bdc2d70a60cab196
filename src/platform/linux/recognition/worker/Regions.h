#pragma once

#include "platform/linux/recognition/worker/GreyPicture.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tembra::recognition {

// Pixels of a picture; right and bottom are outside.
struct PixelBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] int width() const { return right - left; }
    [[nodiscard]] int height() const { return bottom - top; }
    [[nodiscard]] PixelBox united(const PixelBox &other) const {
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
                std::max(bottom, other.bottom)};
    }

    bool operator==(const PixelBox &) const = default;
};

// Which pixels hang together: each has the number of its region.
struct Regions {
    std::vector<std::int32_t> numbers;
    std::vector<PixelBox> boxes;
};

// Calls `take(number, box)` for what lies side by side in a row and has the same number.
template <class Take>
void forRuns(const std::vector<std::int32_t> &numbers, int width, Take take) {
    const int height = width > 0 ? static_cast<int>(numbers.size() / static_cast<size_t>(width)) : 0;
    for (int y = 0; y < height; ++y) {
        const std::int32_t *const row = numbers.data() + std::ptrdiff_t{y} * width;
        for (int x = 0; x < width;) {
            const int from = x;
            while (x < width && row[x] == row[from])
                ++x;
            if (row[from] >= 0)
                take(row[from], PixelBox{from, y, x, y + 1});
        }
    }
}

// Numbers the regions from 0; `rootOf(number)` is the same for all that has turned out to be one.
template <class RootOf>
void nameRegions(Regions &regions, size_t numberCount, int width, RootOf rootOf) {
    std::vector<std::int32_t> names(numberCount, -1);
    for (size_t i = 0; i < numberCount; ++i) {
        const std::int32_t root = rootOf(static_cast<std::int32_t>(i));
        std::int32_t &name = names[static_cast<size_t>(root)];
        if (name < 0) {
            name = static_cast<std::int32_t>(regions.boxes.size());
            constexpr int farthest = std::numeric_limits<int>::max();
            regions.boxes.push_back({farthest, farthest, 0, 0});
        }
        names[i] = name;
    }
    for (std::int32_t &number : regions.numbers)
        number = number < 0 ? number : names[static_cast<size_t>(number)];
    forRuns(regions.numbers, width, [&](std::int32_t number, const PixelBox &run) {
        PixelBox &box = regions.boxes[static_cast<size_t>(number)];
        box = box.united(run);
    });
}

// Regions of neighbours, the diagonal ones among them, that `areTogether(offset, offset)` says of. Pixels
// that `counts(offset)` is false of are in none (-1).
template <class Counts, class AreTogether>
Regions regionsOf(int width, int height, Counts counts, AreTogether areTogether) {
    Regions result;
    std::vector<std::int32_t> parents;
    const auto rootOf = [&](std::int32_t number) {
        while (parents[static_cast<size_t>(number)] != number) {
            std::int32_t &parent = parents[static_cast<size_t>(number)];
            parent = parents[static_cast<size_t>(parent)];
            number = parent;
        }
        return number;
    };
    auto &numbers = result.numbers;
    numbers.assign(static_cast<size_t>(width) * static_cast<size_t>(height), -1);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const size_t at = static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x);
            if (!counts(at))
                continue;
            std::int32_t number = -1;
            std::int32_t joined = -1;
            const auto join = [&](bool isThere, size_t distance) {
                // Most neighbours are of one region already.
                if (!isThere || numbers[at - distance] == joined || !areTogether(at, at - distance))
                    return;
                joined = numbers[at - distance];
                if (joined < 0)
                    return;
                const std::int32_t other = rootOf(joined);
                if (number >= 0 && number != other)
                    parents[static_cast<size_t>(std::max(number, other))] = std::min(number, other);
                number = number < 0 ? other : std::min(number, other);
            };
            const auto rowDistance = static_cast<size_t>(width);
            join(x > 0, 1);
            join(y > 0, rowDistance);
            join(y > 0 && x > 0, rowDistance + 1);
            join(y > 0 && x + 1 < width, rowDistance - 1);
            if (number < 0) {
                number = static_cast<std::int32_t>(parents.size());
                parents.push_back(number);
            }
            numbers[at] = number;
        }
    }
    nameRegions(result, parents.size(), width, rootOf);
    return result;
}

} // namespace tembra::recognition
