#include "imaging/DeflateHalves.h"

#include "imaging/DeflateEnd.h"
#include "imaging/DeflateRuns.h"
#include "imaging/InHalves.h"
#include "imaging/PageBuffer.h"

#include <QtEndian>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <libdeflate.h>
#include <memory>

namespace tembra {

namespace {

using Bytes = std::span<unsigned char>;

constexpr std::size_t frontBytes = 2;
constexpr std::size_t joinBytes = 8;

struct Release {
    void operator()(libdeflate_compressor *compressor) const { libdeflate_free_compressor(compressor); }
};

struct Half {
    Bytes data;
    Bytes room;
    std::size_t compressed = 0;
    std::uint32_t checksum = 1;
};

// The checksum of two pieces of data in a row, from theirs (RFC 1950, 8.2).
std::uint32_t joinedChecksum(std::uint32_t first, std::uint32_t second, std::size_t secondSize) {
    constexpr std::uint64_t base = 65'521;
    const std::uint64_t sumOfFirst = first & 0xffff;
    const std::uint64_t low = (sumOfFirst + (second & 0xffff) + base - 1) % base;
    const std::uint64_t carried = (secondSize % base) * ((sumOfFirst + base - 1) % base);
    const std::uint64_t high = ((first >> 16) + (second >> 16) + carried) % base;
    return static_cast<std::uint32_t>(high << 16 | low);
}

std::size_t boundOf(std::size_t size, bool isOfDifferences) {
    return isOfDifferences ? deflateRunsBound(size) : libdeflate_deflate_compress_bound(nullptr, size);
}

std::size_t deflate(const Half &half) {
    constexpr int usualLevel = 6;
    const std::unique_ptr<libdeflate_compressor, Release> compressor(libdeflate_alloc_compressor(usualLevel));
    return compressor ? libdeflate_deflate_compress(compressor.get(), half.data.data(), half.data.size(),
                                                    half.room.data(), half.room.size())
                      : 0;
}

// Has the stream end with an empty block that is not the last and ends on a whole byte, so that others can
// follow. There is room behind the stream for it.
std::size_t open(Bytes room, std::size_t size) {
    const auto found = findDeflateEnd(room.first(size));
    if (!found)
        return 0;
    room[found->lastBlock / 8] &= static_cast<unsigned char>(~(1U << found->lastBlock % 8));
    constexpr std::size_t blockHeader = 3;
    std::size_t end = (found->end + blockHeader + 7) / 8;
    std::ranges::fill(room.subspan(size, std::max(size, end) - size), static_cast<unsigned char>(0));
    for (const unsigned char byte : {0x00, 0x00, 0xff, 0xff})
        room[end++] = byte;
    return end;
}

} // namespace

std::optional<DeflateHalves::Stream> DeflateHalves::compress(PageBuffer &memory) const {
    std::array<Half, 2> halves;
    std::array<std::size_t, 2> bounds{};
    for (std::size_t i = 0; i < 2; ++i)
        bounds[i] = boundOf(sizes[i], isOfDifferences) + joinBytes;
    const Bytes all = memory.take(frontBytes + bounds[0] + bounds[1] + sizes[0] + sizes[1]);
    if (all.empty())
        return std::nullopt;
    const Bytes data = all.last(sizes[0] + sizes[1]);
    halves[0] = {data.first(sizes[0]), all.subspan(frontBytes, bounds[0])};
    halves[1] = {data.last(sizes[1]), all.subspan(frontBytes + bounds[0], bounds[1])};
    inHalves([&](std::size_t i) {
        Half &half = halves[i];
        make(i, half.data);
        half.checksum = libdeflate_adler32(1, half.data.data(), half.data.size());
        half.compressed = isOfDifferences ? deflateRuns(half.data, i == 1, half.room) : deflate(half);
        if (i == 0 && !isOfDifferences)
            half.compressed = open(half.room, half.compressed);
    });
    if (halves[0].compressed == 0 || halves[1].compressed == 0)
        return std::nullopt;
    // A window of 32 KiB, the usual level, and the checksum of these two bytes.
    all[0] = 0x78;
    all[1] = 0x9c;
    const std::uint32_t checksum =
        joinedChecksum(halves[0].checksum, halves[1].checksum, halves[1].data.size());
    qToBigEndian(checksum, halves[1].room.data() + halves[1].compressed);
    return Stream{all.first(frontBytes + halves[0].compressed),
                  halves[1].room.first(halves[1].compressed + sizeof checksum)};
}

} // namespace tembra
