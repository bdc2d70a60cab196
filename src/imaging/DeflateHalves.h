#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>

namespace tembra {

class PageBuffer;

// Compresses data to one zlib stream (RFC 1950) in two halves, each on a thread of its own. The halves follow
// each other in the result, which lies in `memory`. `make` is called on either thread to fill a half.
// Nothing when there is not enough memory.
struct DeflateHalves {
    std::array<std::size_t, 2> sizes;
    // Differences of pixels (DeflateRuns.h), where there is nothing to find but runs.
    bool isOfDifferences = false;
    std::function<void(std::size_t half, std::span<unsigned char> data)> make;

    using Stream = std::array<std::span<const unsigned char>, 2>;
    [[nodiscard]] std::optional<Stream> compress(PageBuffer &memory) const;
};

} // namespace tembra
