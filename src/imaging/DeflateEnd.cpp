#include "imaging/DeflateEnd.h"

#include "imaging/HuffmanCode.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace tembra {

namespace {

constexpr std::size_t literalCodes = 288;
constexpr std::size_t distanceCodes = 32;

class Bits {
public:
    explicit Bits(std::span<const unsigned char> bytes) : m_bytes(bytes) {}

    // At least 56 bits follow; behind the end they are zeros.
    [[nodiscard]] std::uint64_t peek() const {
        const std::size_t first = m_position / 8;
        std::uint64_t word = 0;
        if (first + sizeof word <= m_bytes.size())
            std::memcpy(&word, m_bytes.data() + first, sizeof word);
        else if (first < m_bytes.size())
            std::memcpy(&word, m_bytes.data() + first, m_bytes.size() - first);
        return word >> (m_position % 8);
    }
    void skip(std::size_t count) { m_position += count; }
    unsigned take(unsigned count) {
        const auto value = static_cast<unsigned>(peek() & ((std::uint64_t{1} << count) - 1));
        skip(count);
        return value;
    }
    void align() { m_position = (m_position + 7) / 8 * 8; }
    [[nodiscard]] std::size_t position() const { return m_position; }
    [[nodiscard]] bool isBeyond() const { return m_position > 8 * m_bytes.size(); }

private:
    std::span<const unsigned char> m_bytes;
    std::size_t m_position = 0;
};

enum Meaning : unsigned char { literal, endOfBlock, lengthOfMatch };

// What is to be known of a symbol: how many bits belong to it besides its code, and what it means.
struct Symbol {
    unsigned char extraBits = 0;
    unsigned char meaning = literal;
};

Symbol literalSymbol(std::size_t symbol) {
    if (symbol < 256)
        return {};
    if (symbol == 256)
        return {0, endOfBlock};
    const auto extra = static_cast<unsigned char>(symbol < 265 || symbol >= 285 ? 0 : (symbol - 261) / 4);
    return {extra, lengthOfMatch};
}

Symbol distanceSymbol(std::size_t symbol) {
    return {static_cast<unsigned char>(symbol < 4 ? 0 : symbol / 2 - 1), literal};
}

// The code of code lengths: a symbol means itself.
Symbol lengthSymbol(std::size_t symbol) {
    return {0, static_cast<unsigned char>(symbol)};
}

// A canonical Huffman code, as a table of what the next bits may be.
class Code {
public:
    struct Entry {
        // Of the code and what belongs to it; none where no code begins so.
        unsigned char bits = 0;
        unsigned char meaning = 0;
    };

    void build(std::span<const unsigned char> lengths, Symbol (*symbolOf)(std::size_t)) {
        const auto codes = huffmanCodes(lengths);
        const unsigned longest = std::max<unsigned>(1, std::ranges::max(lengths));
        m_entries.assign(std::size_t{1} << longest, {});
        for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
            const unsigned length = lengths[symbol];
            if (length == 0)
                continue;
            const Symbol meaning = symbolOf(symbol);
            const Entry entry{static_cast<unsigned char>(length + meaning.extraBits), meaning.meaning};
            for (std::size_t i = codes[symbol]; i < m_entries.size(); i += std::size_t{1} << length)
                m_entries[i] = entry;
        }
    }

    [[nodiscard]] Entry find(std::uint64_t bits) const { return m_entries[bits & (m_entries.size() - 1)]; }

private:
    std::vector<Entry> m_entries;
};

class Walk {
public:
    explicit Walk(std::span<const unsigned char> stream) : m_bits(stream) {}

    std::optional<DeflateEnd> run() {
        DeflateEnd found;
        bool isLast = false;
        while (!isLast) {
            found.lastBlock = m_bits.position();
            isLast = m_bits.take(1) == 1;
            if (!skipBlock(m_bits.take(2)) || m_bits.isBeyond())
                return std::nullopt;
        }
        found.end = m_bits.position();
        return found;
    }

private:
    bool skipBlock(unsigned type) {
        switch (type) {
        case 0:
            skipStored();
            return true;
        case 1:
            useFixedCodes();
            return skipSymbols();
        case 2:
            return readCodes() && skipSymbols();
        default:
            return false;
        }
    }

    void skipStored() {
        m_bits.align();
        const unsigned length = m_bits.take(16);
        m_bits.skip(16 + std::size_t{8} * length);
    }

    void useFixedCodes() {
        std::array<unsigned char, literalCodes> lengths;
        for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
            lengths[symbol] = symbol < 144 ? 8 : symbol < 256 ? 9 : symbol < 280 ? 7 : 8;
        m_literals.build(lengths, literalSymbol);
        std::array<unsigned char, distanceCodes> distances;
        distances.fill(5);
        m_distances.build(distances, distanceSymbol);
    }

    bool readCodes() {
        constexpr std::array<std::size_t, 19> order{16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                    11, 4,  12, 3, 13, 2, 14, 1, 15};
        const std::size_t literals = 257 + m_bits.take(5);
        const std::size_t distances = 1 + m_bits.take(5);
        const unsigned count = 4 + m_bits.take(4);
        std::array<unsigned char, 19> lengthLengths{};
        for (unsigned i = 0; i < count; ++i)
            lengthLengths[order[i]] = static_cast<unsigned char>(m_bits.take(3));
        m_lengths.build(lengthLengths, lengthSymbol);
        std::array<unsigned char, literalCodes + distanceCodes> lengths{};
        const auto all = std::span(lengths).first(literals + distances);
        if (!readLengths(all))
            return false;
        m_literals.build(all.first(literals), literalSymbol);
        m_distances.build(all.subspan(literals), distanceSymbol);
        return true;
    }

    bool readLengths(std::span<unsigned char> lengths) {
        for (std::size_t i = 0; i < lengths.size();) {
            const Code::Entry found = m_lengths.find(m_bits.peek());
            if (found.bits == 0)
                return false;
            m_bits.skip(found.bits);
            std::size_t count = 1;
            unsigned char value = found.meaning;
            if (found.meaning >= 16) {
                value = found.meaning == 16 && i > 0 ? lengths[i - 1] : 0;
                count = found.meaning == 16   ? 3 + m_bits.take(2)
                        : found.meaning == 17 ? 3 + m_bits.take(3)
                                              : 11 + m_bits.take(7);
            }
            if (count > lengths.size() - i)
                return false;
            std::ranges::fill(lengths.subspan(i, count), value);
            i += count;
        }
        return true;
    }

    bool skipSymbols() {
        while (!m_bits.isBeyond()) {
            std::uint64_t word = m_bits.peek();
            Code::Entry found = m_literals.find(word);
            std::size_t taken = 0;
            // Three literals and what follows them are in the word for certain.
            for (int literals = 0; found.meaning == literal && found.bits != 0 && literals < 2; ++literals) {
                taken += found.bits;
                word >>= found.bits;
                found = m_literals.find(word);
            }
            if (found.bits == 0)
                return false;
            m_bits.skip(taken + found.bits);
            if (found.meaning == endOfBlock)
                return true;
            if (found.meaning == lengthOfMatch) {
                const Code::Entry distance = m_distances.find(m_bits.peek());
                if (distance.bits == 0)
                    return false;
                m_bits.skip(distance.bits);
            }
        }
        return false;
    }

    Bits m_bits;
    Code m_lengths;
    Code m_literals;
    Code m_distances;
};

} // namespace

std::optional<DeflateEnd> findDeflateEnd(std::span<const unsigned char> stream) {
    return Walk(stream).run();
}

} // namespace tembra
