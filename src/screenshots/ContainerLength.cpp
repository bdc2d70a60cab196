#include "screenshots/ContainerLength.h"

#include <QtEndian>

#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <optional>

namespace tembra {

namespace {

// More boxes at the top than any recorder writes, unless it writes fragments without end.
constexpr int mostBoxes = 100'000;

struct Vint {
    std::uint64_t value = 0;
    std::uint64_t length = 0;
    bool isUnknown = false;
};

// A variable-length number of EBML (RFC 8794, 4): the leading zero bits of the first byte tell how many
// follow.
std::optional<Vint> readVint(const OpenFile &file, std::uint64_t offset) {
    std::array<char, 8> bytes{};
    const std::size_t count = file.read(offset, bytes);
    if (count == 0)
        return std::nullopt;
    const auto first = static_cast<unsigned char>(bytes[0]);
    const auto length = static_cast<std::size_t>(std::countl_zero(first)) + 1;
    if (length > count || length > bytes.size())
        return std::nullopt;
    std::uint64_t value = first & (0xffU >> length);
    for (std::size_t i = 1; i < length; ++i)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    const std::uint64_t allOnes = (std::uint64_t{1} << (7 * length)) - 1;
    return Vint{value, length, value == allOnes};
}

// Skips an element header's id of four bytes and gives its size.
std::optional<Vint> sizeAfterId(const OpenFile &file, std::uint64_t offset, quint32 id) {
    std::array<char, 4> bytes{};
    if (file.read(offset, bytes) != bytes.size() || qFromBigEndian<quint32>(bytes.data()) != id)
        return std::nullopt;
    return readVint(file, offset + bytes.size());
}

} // namespace

bool isWholeIsoMedia(const OpenFile &file, std::uint64_t size, const char *requiredBox) {
    bool hasRequired = false;
    std::uint64_t offset = 0;
    for (int box = 0; box < mostBoxes && offset < size; ++box) {
        std::array<char, 16> header{};
        if (file.read(offset, header) < 8)
            return false;
        // A length of one means: in 64 bits behind the type; one of zero: up to the end of the file.
        const std::uint64_t shortLength = qFromBigEndian<quint32>(header.data());
        const bool isLong = shortLength == 1;
        const std::uint64_t length = isLong             ? qFromBigEndian<quint64>(header.data() + 8)
                                     : shortLength == 0 ? size - offset
                                                        : shortLength;
        if (length < (isLong ? 16U : 8U) || length > size - offset)
            return false;
        hasRequired = hasRequired || std::memcmp(header.data() + 4, requiredBox, 4) == 0;
        offset += length;
    }
    return hasRequired && offset == size;
}

MatroskaLength matroskaLength(const OpenFile &file, std::uint64_t size) {
    constexpr quint32 ebmlHeader = 0x1a45dfa3;
    constexpr quint32 segment = 0x18538067;
    const auto header = sizeAfterId(file, 0, ebmlHeader);
    if (!header || header->isUnknown || header->value > size)
        return MatroskaLength::tooShort;
    const std::uint64_t segmentAt = 4 + header->length + header->value;
    const auto body = sizeAfterId(file, segmentAt, segment);
    if (!body)
        return MatroskaLength::tooShort;
    if (body->isUnknown)
        return MatroskaLength::unknown;
    const std::uint64_t bodyAt = segmentAt + 4 + body->length;
    return body->value <= size - bodyAt ? MatroskaLength::whole : MatroskaLength::tooShort;
}

} // namespace tembra
