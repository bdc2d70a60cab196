#pragma once

#include <cstddef>
#include <span>

namespace tembra {

// Compresses the differences between a photograph's pixels to a deflate stream (RFC 1951): nothing repeats
// there but runs of one byte, and looking for more takes long and makes it larger. Where `isLast` is false
// the stream is left open and ends on a whole byte, so that another can follow.

// Of the memory that is needed.
[[nodiscard]] std::size_t deflateRunsBound(std::size_t size);

// How many bytes of `room` were filled.
[[nodiscard]] std::size_t deflateRuns(std::span<const unsigned char> data, bool isLast,
                                      std::span<unsigned char> room);

} // namespace tembra
