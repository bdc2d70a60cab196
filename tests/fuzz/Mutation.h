#pragma once

#include <cstddef>
#include <cstdint>

// Of libFuzzer, which has no header for it: changes some bytes in place, by chance and by what it has learnt.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t room);
