#include "screenshots/PictureLength.h"

#include <QtEndian>

#include <array>
#include <string_view>
#include <vector>

namespace tembra {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t entrySize = 12;
// More strips than any writer makes are not read.
constexpr std::uint64_t longestList = 1 << 20;

// The numbers of a TIFF file, in its own byte order.
class TiffNumbers {
public:
    TiffNumbers(const OpenFile &file, std::uint64_t size, bool isLittle)
        : m_file(file), m_size(size), m_isLittle(isLittle) {}

    [[nodiscard]] bool isWithin(std::uint64_t offset, std::uint64_t length) const {
        return offset <= m_size && length <= m_size - offset;
    }
    [[nodiscard]] std::vector<char> bytes(std::uint64_t offset, std::uint64_t length) const {
        if (!isWithin(offset, length))
            return {};
        std::vector<char> bytes(length);
        bytes.resize(m_file.read(offset, bytes));
        return bytes;
    }
    [[nodiscard]] std::uint32_t number16(const char *at) const {
        return m_isLittle ? qFromLittleEndian<quint16>(at) : qFromBigEndian<quint16>(at);
    }
    [[nodiscard]] std::uint32_t number32(const char *at) const {
        return m_isLittle ? qFromLittleEndian<quint32>(at) : qFromBigEndian<quint32>(at);
    }

private:
    const OpenFile &m_file;
    const std::uint64_t m_size;
    const bool m_isLittle;
};

std::uint64_t sizeOfType(std::uint32_t type) {
    constexpr std::array<std::uint8_t, 14> sizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
    return type < sizes.size() ? sizes.at(type) : 0;
}

// A directory entry: tag, type, count, and the values themselves or where they are.
class TiffEntry {
public:
    TiffEntry(const TiffNumbers &numbers, const char *at)
        : m_numbers(numbers),
          m_at(at),
          m_valueSize(sizeOfType(numbers.number16(at + 2))),
          m_length(m_valueSize * numbers.number32(at + 4)) {}

    [[nodiscard]] bool isWithin() const {
        return m_length <= 4 || m_numbers.isWithin(m_numbers.number32(m_at + 8), m_length);
    }
    [[nodiscard]] std::vector<std::uint32_t> values() const {
        if (m_length > longestList)
            return {};
        const std::vector<char> bytes = m_length <= 4
                                            ? std::vector<char>(m_at + 8, m_at + 8 + m_length)
                                            : m_numbers.bytes(m_numbers.number32(m_at + 8), m_length);
        std::vector<std::uint32_t> values;
        for (std::size_t i = 0; m_valueSize > 0 && i + m_valueSize <= bytes.size(); i += m_valueSize)
            values.push_back(m_valueSize == 2   ? m_numbers.number16(bytes.data() + i)
                             : m_valueSize == 4 ? m_numbers.number32(bytes.data() + i)
                                                : 0);
        return values;
    }

private:
    const TiffNumbers &m_numbers;
    const char *m_at;
    std::uint64_t m_valueSize;
    std::uint64_t m_length;
};

// Whether everything that the directory's entries point to lies within the file.
bool hasAll(const TiffNumbers &numbers, const std::vector<char> &entries) {
    std::vector<std::uint32_t> offsets;
    std::vector<std::uint32_t> counts;
    for (std::size_t at = 0; at < entries.size(); at += entrySize) {
        const TiffEntry entry(numbers, entries.data() + at);
        if (!entry.isWithin())
            return false;
        constexpr std::uint32_t stripOffsets = 273;
        constexpr std::uint32_t stripByteCounts = 279;
        constexpr std::uint32_t tileOffsets = 324;
        constexpr std::uint32_t tileByteCounts = 325;
        const std::uint32_t tag = numbers.number16(entries.data() + at);
        if (tag == stripOffsets || tag == tileOffsets)
            offsets = entry.values();
        else if (tag == stripByteCounts || tag == tileByteCounts)
            counts = entry.values();
    }
    // Old writers leave out the counts.
    for (std::size_t i = 0; i < offsets.size(); ++i) {
        if (!numbers.isWithin(offsets[i], i < counts.size() ? counts[i] : 1))
            return false;
    }
    return true;
}

} // namespace

bool isWholeTiff(const OpenFile &file, std::uint64_t size) {
    std::array<char, 8> head{};
    if (file.read(0, head) < head.size())
        return false;
    const std::string_view order(head.data(), 4);
    if (order != "II*\0"sv && order != "MM\0*"sv)
        return false;
    const TiffNumbers numbers(file, size, order.front() == 'I');
    const std::uint64_t directory = numbers.number32(head.data() + 4);
    const std::vector<char> count = numbers.bytes(directory, 2);
    if (directory < head.size() || count.size() < 2)
        return false;
    const std::size_t length = numbers.number16(count.data()) * entrySize;
    const std::vector<char> entries = numbers.bytes(directory + 2, length);
    // The place of the next directory follows.
    if (length == 0 || entries.size() < length || !numbers.isWithin(directory + 2 + length, 4))
        return false;

    return hasAll(numbers, entries);
}

} // namespace tembra
