#pragma once

#include <cstdint>
#include <span>

namespace tembra {

// FNV-1a in 64 bits. The result is stored, so it must be the same in every version and on every machine.
constexpr std::uint64_t stableHash(std::span<const char> bytes, std::uint64_t hash = 0xcbf29ce484222325ULL) {
    for (const char byte : bytes) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 0x100000001b3ULL;
    }
    return hash;
}

} // namespace tembra
