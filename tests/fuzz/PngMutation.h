#pragma once

#include <cstddef>
#include <cstdint>

namespace tembra {

// Changes a picture's file as LLVMFuzzerCustomMutator is asked to. Of a PNG file sometimes the pixels before
// compression, and mostly with checksums that are right afterwards: few others get past the first of them.
[[nodiscard]] std::size_t mutatePng(std::uint8_t *data, std::size_t size, std::size_t room, unsigned seed);

} // namespace tembra
