#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tembra {

// Canonical Huffman codes as deflate has them (RFC 1951, 3.2).

// The length of each symbol's code, none for symbols that do not occur. No code is longer than `limit`, which
// is enough for as many symbols as there are.
[[nodiscard]] std::vector<unsigned char> huffmanLengths(std::span<const std::uint32_t> counts,
                                                        unsigned limit);

// The codes of these lengths, the bit that is written first the lowest.
[[nodiscard]] std::vector<std::uint16_t> huffmanCodes(std::span<const unsigned char> lengths);

} // namespace tembra
