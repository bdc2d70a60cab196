#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace tembra {

// Where a deflate stream (RFC 1951) ends, in bits from its start: what is needed to have another one follow
// it.
struct DeflateEnd {
    // The bit that says that no other block follows.
    std::size_t lastBlock = 0;
    // Behind the last block.
    std::size_t end = 0;
};

// Walks through the codes of a whole stream without inflating it. Nothing when it is damaged.
[[nodiscard]] std::optional<DeflateEnd> findDeflateEnd(std::span<const unsigned char> stream);

} // namespace tembra
