#include "imaging/PngFilter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace tembra {

namespace {

using Byte = unsigned char;

void undoUp(Byte *row, const Byte *above, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i)
        row[i] = static_cast<Byte>(row[i] + above[i]);
}

// The number of channels is known when these are compiled, so that the pixel to the left stays in registers.
template <std::size_t channels>
void undoSub(Byte *row, std::size_t size) {
    std::array<Byte, channels> left{};
    for (std::size_t i = 0; i < size; i += channels) {
        for (std::size_t c = 0; c < channels; ++c)
            row[i + c] = left[c] = static_cast<Byte>(row[i + c] + left[c]);
    }
}

template <std::size_t channels>
void undoAverage(Byte *row, const Byte *above, std::size_t size) {
    std::array<unsigned, channels> left{};
    for (std::size_t i = 0; i < size; i += channels) {
        for (std::size_t c = 0; c < channels; ++c) {
            left[c] = (row[i + c] + (left[c] + above[i + c]) / 2) & 0xff;
            row[i + c] = static_cast<Byte>(left[c]);
        }
    }
}

// The one of the three that is nearest to left + up - corner: the corner where it lies in the middle third
// between the other two, else the one of them that is farther from it.
int nearest(int left, int up, int corner) {
    const int lower = std::min(left, up);
    const int higher = std::max(left, up);
    const int beyond = 3 * corner - left - up;
    const int besides = higher <= beyond ? lower : corner;
    return beyond <= lower ? higher : besides;
}

// How many of the bytes are zeros, in whole blocks.
template <std::size_t block>
std::size_t zeros(const Byte *bytes, std::size_t size) {
    std::array<std::uint64_t, block / sizeof(std::uint64_t)> words;
    std::size_t count = 0;
    while (size - count >= block) {
        std::memcpy(words.data(), bytes + count, block);
        if (std::ranges::any_of(words, [](std::uint64_t word) { return word != 0; }))
            break;
        count += block;
    }
    return count;
}

// The channels of a pixel, and of the next one when it has fewer than four.
using FourBytes = Byte __attribute__((vector_size(4)));
using Lanes = std::int16_t __attribute__((vector_size(8)));

template <std::size_t count>
Lanes lanes(const Byte *bytes) {
    FourBytes four{};
    std::memcpy(&four, bytes, count);
    return __builtin_convertvector(four, Lanes);
}

// The same as the other one does, for each lane.
Lanes nearest(Lanes left, Lanes up, Lanes corner) {
    const Lanes lower = left < up ? left : up;
    const Lanes higher = left < up ? up : left;
    const Lanes beyond = 3 * corner - left - up;
    const Lanes besides = higher <= beyond ? lower : corner;
    return beyond <= lower ? higher : besides;
}

template <std::size_t channels>
void undoPaeth(Byte *row, const Byte *above, std::size_t size) {
    constexpr std::size_t block = 8 * channels;
    constexpr std::size_t readAhead = 4;
    Lanes left{};
    Lanes corner{};
    std::size_t i = 0;
    while (i + readAhead <= size) {
        // Where the row has become like the one above it stays so until a difference is given: most of what
        // is on screens.
        const bool isAlike = std::memcmp(&left, &corner, channels * sizeof(std::int16_t)) == 0;
        const std::size_t alike = isAlike ? zeros<block>(row + i, size - i) : 0;
        if (alike > 0) {
            std::memcpy(row + i, above + i, alike);
            i += alike;
            left = corner = lanes<channels>(above + i - channels);
        }
        const std::size_t end = std::min(size - readAhead + 1, i + block);
        for (; i < end; i += channels) {
            const Lanes up = lanes<readAhead>(above + i);
            left = (lanes<readAhead>(row + i) + nearest(left, up, corner)) & 0xff;
            corner = up;
            const auto bytes = __builtin_convertvector(left, FourBytes);
            std::memcpy(row + i, &bytes, channels);
        }
    }
    for (; i < size; ++i) {
        const bool isFirst = i < channels;
        row[i] = static_cast<Byte>(
            row[i] + nearest(isFirst ? 0 : row[i - channels], above[i], isFirst ? 0 : above[i - channels]));
    }
}

template <std::size_t channels>
bool undo(Byte *row, const Byte *above, std::size_t size) {
    switch (*row) {
    case 0:
        return true;
    case 1:
        undoSub<channels>(row + 1, size);
        return true;
    case 2:
        undoUp(row + 1, above, size);
        return true;
    case 3:
        undoAverage<channels>(row + 1, above, size);
        return true;
    case 4:
        undoPaeth<channels>(row + 1, above, size);
        return true;
    default:
        return false;
    }
}

} // namespace

bool undoPngFilter(unsigned char *row, const unsigned char *above, std::size_t size, int channels) {
    switch (channels) {
    case 1:
        return undo<1>(row, above, size);
    case 2:
        return undo<2>(row, above, size);
    case 3:
        return undo<3>(row, above, size);
    default:
        return undo<4>(row, above, size);
    }
}

} // namespace tembra
